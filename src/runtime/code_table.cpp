// The table of error codes: entry k holds the name of code k and its printf
// template. Each template starts with the code's name, a colon and a line
// break. Generated once by tools/ and maintained by hand since; the order
// of the entries is the numbering of the codes and must never change.
#include "runtime/code_table.hpp"

namespace kiv::rt {

// clang-format off
const CodeEntry kCodeTable[kCodeTableSize] = {
    {"NE_NOERROR", "NE_NOERROR:\n  No error."}, /* 0 */
    {"NE_CODE_NOT_SET", "NE_CODE_NOT_SET:\n  Error code has not been set by the last function called."}, /* 1 */
    {"NE_ERR_MSG_STRING", "NE_ERR_MSG_STRING:\n  Error: Err msg string."}, /* 2 */
    {"NE_TOO_MANY", "NE_TOO_MANY:\n  Too many iterations (%ld)."}, /* 3 */
    {"NE_REAL_ARG_EQ", "NE_REAL_ARG_EQ:\n  On entry, %s must not be equal to %s: %s = %g."}, /* 4 */
    {"NE_REAL_ARG_LT", "NE_REAL_ARG_LT:\n  On entry, %s must not be less than %s: %s = %g."}, /* 5 */
    {"NE_REAL_ARG_LE", "NE_REAL_ARG_LE:\n  On entry, %s must not be less than or equal to %s: %s = %g."}, /* 6 */
    {"NE_REAL_ARG_GT", "NE_REAL_ARG_GT:\n  On entry, %s must not be greater than %s: %s = %g."}, /* 7 */
    {"NE_REAL_ARG_GE", "NE_REAL_ARG_GE:\n  On entry, %s must not be greater than or equal to %s: %s = %g."}, /* 8 */
    {"NE_REAL_ARG_CONS", "NE_REAL_ARG_CONS:\n  On entry, %s = %g.\n  Constraint: %s."}, /* 9 */
    {"NE_INT_ARG_EQ", "NE_INT_ARG_EQ:\n  On entry, %s must not be equal to %s: %s = %ld."}, /* 10 */
    {"NE_INT_ARG_LT", "NE_INT_ARG_LT:\n  On entry, %s must not be less than %s: %s = %ld."}, /* 11 */
    {"NE_INT_ARG_LE", "NE_INT_ARG_LE:\n  On entry, %s must not be less than or equal to %s: %s = %ld."}, /* 12 */
    {"NE_INT_ARG_GT", "NE_INT_ARG_GT:\n  On entry, %s must not be greater than %s: %s = %ld."}, /* 13 */
    {"NE_INT_ARG_GE", "NE_INT_ARG_GE:\n  On entry, %s must not be greater than or equal to %s: %s = %ld."}, /* 14 */
    {"NE_INT_ARG_CONS", "NE_INT_ARG_CONS:\n  On entry, %s = %ld.\n  Constraint: %s."}, /* 15 */
    {"NE_2_INT_ARG_EQ", "NE_2_INT_ARG_EQ:\n  On entry, %s = %2ld while %s = %2ld.\n  These parameters must satisfy %s != %s."}, /* 16 */
    {"NE_2_INT_ARG_LT", "NE_2_INT_ARG_LT:\n  On entry, %s = %2ld while %s = %2ld.\n  These parameters must satisfy %s >= %s."}, /* 17 */
    {"NE_2_INT_ARG_LE", "NE_2_INT_ARG_LE:\n  On entry, %s = %2ld while %s = %2ld.\n  These parameters must satisfy %s > %s."}, /* 18 */
    {"NE_2_INT_ARG_GT", "NE_2_INT_ARG_GT:\n  On entry, %s = %2ld while %s = %2ld.\n  These parameters must satisfy %s <= %s."}, /* 19 */
    {"NE_2_INT_ARG_GE", "NE_2_INT_ARG_GE:\n  On entry, %s = %2ld while %s = %2ld.\n  These parameters must satisfy %s < %s."}, /* 20 */
    {"NE_2_INT_ARG_ZERO", "NE_2_INT_ARG_ZERO:\n  Error: 2 integer argument zero."}, /* 21 */
    {"NE_2_REAL_ARG_EQ", "NE_2_REAL_ARG_EQ:\n  On entry, %s = %g while %s = %g.\n  These parameters must satisfy %s != %s."}, /* 22 */
    {"NE_2_REAL_ARG_LT", "NE_2_REAL_ARG_LT:\n  On entry, %s = %g while %s = %g.\n  These parameters must satisfy %s >= %s."}, /* 23 */
    {"NE_2_REAL_ARG_LE", "NE_2_REAL_ARG_LE:\n  On entry, %s = %g while %s = %g.\n  These parameters must satisfy %s > %s."}, /* 24 */
    {"NE_2_REAL_ARG_GT", "NE_2_REAL_ARG_GT:\n  On entry, %s = %g while %s = %g.\n  These parameters must satisfy %s <= %s."}, /* 25 */
    {"NE_2_REAL_ARG_GE", "NE_2_REAL_ARG_GE:\n  On entry, %s = %g while %s = %g.\n  These parameters must satisfy %s < %s."}, /* 26 */
    {"NE_2_REAL_ARG_TOO_CLOSE", "NE_2_REAL_ARG_TOO_CLOSE:\n  Error: 2 real argument too close."}, /* 27 */
    {"NE_2_INT_ARG_CONS", "NE_2_INT_ARG_CONS:\n  On entry, %s = %ld and %s = %ld.\n  Constraint: %s."}, /* 28 */
    {"NE_3_INT_ARG_CONS", "NE_3_INT_ARG_CONS:\n  On entry, %s = %ld, %s = %ld and %s = %ld.\n  Constraint: %s."}, /* 29 */
    {"NE_4_INT_ARG_CONS", "NE_4_INT_ARG_CONS:\n  Error: 4 integer argument constraint."}, /* 30 */
    {"NE_2_REAL_ARG_CONS", "NE_2_REAL_ARG_CONS:\n  On entry, %s = %g and %s = %g.\n  Constraint: %s."}, /* 31 */
    {"NE_3_REAL_ARG_CONS", "NE_3_REAL_ARG_CONS:\n  Error: 3 real argument constraint."}, /* 32 */
    {"NE_4_REAL_ARG_CONS", "NE_4_REAL_ARG_CONS:\n  Error: 4 real argument constraint."}, /* 33 */
    {"NE_2_REAL_ENUM_ARG_CONS", "NE_2_REAL_ENUM_ARG_CONS:\n  Error: 2 real enumeration argument constraint."}, /* 34 */
    {"NE_3_REAL_ENUM_ARG_CONS", "NE_3_REAL_ENUM_ARG_CONS:\n  Error: 3 real enumeration argument constraint."}, /* 35 */
    {"NE_REAL_INT_ARG_CONS", "NE_REAL_INT_ARG_CONS:\n  Error: Real integer argument constraint."}, /* 36 */
    {"NE_REAL_ENUM_ARG_CONS", "NE_REAL_ENUM_ARG_CONS:\n  Error: Real enumeration argument constraint."}, /* 37 */
    {"NE_ENUM_ENUM_ARG_CONS", "NE_ENUM_ENUM_ARG_CONS:\n  Error: Enumeration enumeration argument constraint."}, /* 38 */
    {"NE_INVALID_INT_RANGE_1", "NE_INVALID_INT_RANGE_1:\n  Error: Invalid integer range 1."}, /* 39 */
    {"NE_INVALID_INT_RANGE_2", "NE_INVALID_INT_RANGE_2:\n  Error: Invalid integer range 2."}, /* 40 */
    {"NE_INVALID_REAL_RANGE_E", "NE_INVALID_REAL_RANGE_E:\n  Error: Invalid real range e."}, /* 41 */
    {"NE_INVALID_REAL_RANGE_F", "NE_INVALID_REAL_RANGE_F:\n  Error: Invalid real range f."}, /* 42 */
    {"NE_INVALID_REAL_RANGE_EE", "NE_INVALID_REAL_RANGE_EE:\n  Error: Invalid real range ee."}, /* 43 */
    {"NE_INVALID_REAL_RANGE_EF", "NE_INVALID_REAL_RANGE_EF:\n  Error: Invalid real range ef."}, /* 44 */
    {"NE_INVALID_REAL_RANGE_FF", "NE_INVALID_REAL_RANGE_FF:\n  Error: Invalid real range ff."}, /* 45 */
    {"NE_INVALID_REAL_RANGE_FE", "NE_INVALID_REAL_RANGE_FE:\n  Error: Invalid real range fe."}, /* 46 */
    {"NE_INVALID_REAL_RANGE_CONS", "NE_INVALID_REAL_RANGE_CONS:\n  Error: Invalid real range constraint."}, /* 47 */
    {"NE_INT_RANGE_CONS", "NE_INT_RANGE_CONS:\n  Error: Integer range constraint."}, /* 48 */
    {"NE_INT_RANGE_CONS_2", "NE_INT_RANGE_CONS_2:\n  Error: Integer range constraint 2."}, /* 49 */
    {"NE_REAL_RANGE_CONS", "NE_REAL_RANGE_CONS:\n  Error: Real range constraint."}, /* 50 */
    {"NE_2_INT_REAL_ARG_CONS", "NE_2_INT_REAL_ARG_CONS:\n  Error: 2 integer real argument constraint."}, /* 51 */
    {"NE_2_REAL_INT_ARG_CONS", "NE_2_REAL_INT_ARG_CONS:\n  Error: 2 real integer argument constraint."}, /* 52 */
    {"NE_INT_ARRAY_1", "NE_INT_ARRAY_1:\n  On entry, %s contains the value %ld at index %ld.\n  Constraint: %s %ld."}, /* 53 */
    {"NE_INT_ARRAY_2", "NE_INT_ARRAY_2:\n  Error: Integer array 2."}, /* 54 */
    {"NE_REAL_ARRAY_INPUT", "NE_REAL_ARRAY_INPUT:\n  Error: Real array input."}, /* 55 */
    {"NE_INT_ARRAY_VAL_1_OR_2", "NE_INT_ARRAY_VAL_1_OR_2:\n  Error: Integer array val 1 or 2."}, /* 56 */
    {"NE_REAL_ARRAY_CONS", "NE_REAL_ARRAY_CONS:\n  Error: Real array constraint."}, /* 57 */
    {"NE_ARRAY_CONS", "NE_ARRAY_CONS:\n  Error: Array constraint."}, /* 58 */
    {"NE_ARRAY_INPUT", "NE_ARRAY_INPUT:\n  Error: Array input."}, /* 59 */
    {"NE_2_REAL_ARRAYS_CONS", "NE_2_REAL_ARRAYS_CONS:\n  Error: 2 real arrays constraint."}, /* 60 */
    {"NE_REAL_ARRAY_ELEM_CONS", "NE_REAL_ARRAY_ELEM_CONS:\n  Error: Real array element constraint."}, /* 61 */
    {"NE_NOT_INCREASING", "NE_NOT_INCREASING:\n  Error: Not increasing."}, /* 62 */
    {"NE_NOT_STRICTLY_INCREASING", "NE_NOT_STRICTLY_INCREASING:\n  Error: Not strictly increasing."}, /* 63 */
    {"NE_NOT_DECREASING", "NE_NOT_DECREASING:\n  Error: Not decreasing."}, /* 64 */
    {"NE_NOT_STRICTLY_DECREASING", "NE_NOT_STRICTLY_DECREASING:\n  Error: Not strictly decreasing."}, /* 65 */
    {"NE_NOT_NON_DECREASING", "NE_NOT_NON_DECREASING:\n  Error: Not non decreasing."}, /* 66 */
    {"NE_NO_NORMALISATION", "NE_NO_NORMALISATION:\n  Error: No normalisation."}, /* 67 */
    {"NE_USER_STOP", "NE_USER_STOP:\n  Error: User stop."}, /* 68 */
    {"NE_BOOL_NOT_SET", "NE_BOOL_NOT_SET:\n  The Boolean argument %s has not been set to TRUE or FALSE."}, /* 69 */
    {"NE_BAD_PARAM", "NE_BAD_PARAM:\n  On entry, parameter %s had an illegal value."}, /* 70 */
    {"NE_F06_BAD_PARAM", "NE_F06_BAD_PARAM:\n  Error: F06 bad parameter."}, /* 71 */
    {"NE_ARG_INVALID", "NE_ARG_INVALID:\n  On entry, %s = %1ld.\n Constraint: %s must be one of %s."}, /* 72 */
    {"NE_ALLOC_FAIL", "NE_ALLOC_FAIL:\n  Memory allocation failed."}, /* 73 */
    {"NE_INTERNAL_ERROR", "NE_INTERNAL_ERROR:\n  An internal error has occurred in this function.\n  Check the function call and any array sizes. If the call is correct\n  then please consult KIV for assistance."}, /* 74 */
    {"NE_MESG_NOT_INIT", "NE_MESG_NOT_INIT:\n  Error: Mesg not initialised."}, /* 75 */
    {"NE_NOT_READ_FILE", "NE_NOT_READ_FILE:\n  Error: Not read file."}, /* 76 */
    {"NE_NOT_WRITE_FILE", "NE_NOT_WRITE_FILE:\n  Error: Not write file."}, /* 77 */
    {"NE_NOT_APPEND_FILE", "NE_NOT_APPEND_FILE:\n  Error: Not append file."}, /* 78 */
    {"NE_NOT_CLOSE_FILE", "NE_NOT_CLOSE_FILE:\n  Error: Not close file."}, /* 79 */
    {"NE_WRITE_ERROR", "NE_WRITE_ERROR:\n  Error: Write error."}, /* 80 */
    {"NE_STRUCT_CORRUPT", "NE_STRUCT_CORRUPT:\n  Error: Structure corrupt."}, /* 81 */
    {"NE_NULL_ARRAY", "NE_NULL_ARRAY:\n  Error: Null array."}, /* 82 */
    {"NE_NON_MONOTONIC", "NE_NON_MONOTONIC:\n  Error: Non monotonic."}, /* 83 */
    {"NE_INT_OPT_ARG_LT", "NE_INT_OPT_ARG_LT:\n  Error: Integer optional argument less than."}, /* 84 */
    {"NE_INT_OPT_ARG_GT", "NE_INT_OPT_ARG_GT:\n  Error: Integer optional argument greater than."}, /* 85 */
    {"NE_2_INT_OPT_ARG_CONS", "NE_2_INT_OPT_ARG_CONS:\n  Error: 2 integer optional argument constraint."}, /* 86 */
    {"NE_2_REAL_EE_OPT_ARG_CONS", "NE_2_REAL_EE_OPT_ARG_CONS:\n  Error: 2 real ee optional argument constraint."}, /* 87 */
    {"NE_INCOMPAT_PARAM", "NE_INCOMPAT_PARAM:\n  Error: Incompatible parameter."}, /* 88 */
    {"NE_TEST_FAILED", "NE_TEST_FAILED:\n  Error: Test failed."}, /* 89 */
    {"NE_INT", "NE_INT:\n  On entry, %s = %ld.\n  Constraint: %s."}, /* 90 */
    {"NE_INT_2", "NE_INT_2:\n  On entry, %s = %ld, %s = %ld.\n  Constraint: %s."}, /* 91 */
    {"NE_INT_3", "NE_INT_3:\n  On entry, %s = %ld, %s = %ld, %s = %ld.\n  Constraint: %s."}, /* 92 */
    {"NE_INT_4", "NE_INT_4:\n  Error: Integer 4."}, /* 93 */
    {"NE_INT_5", "NE_INT_5:\n  Error: Integer 5."}, /* 94 */
    {"NE_INT_6", "NE_INT_6:\n  Error: Integer 6."}, /* 95 */
    {"NE_ENUM_INT", "NE_ENUM_INT:\n  On entry, %s = %s, %s = %ld.\n  Constraint: %s."}, /* 96 */
    {"NE_ENUM_INT_2", "NE_ENUM_INT_2:\n  Error: Enumeration integer 2."}, /* 97 */
    {"NE_ENUM_INT_3", "NE_ENUM_INT_3:\n  Error: Enumeration integer 3."}, /* 98 */
    {"NE_ENUM_INT_4", "NE_ENUM_INT_4:\n  Error: Enumeration integer 4."}, /* 99 */
    {"NE_REAL", "NE_REAL:\n  On entry, %s = %g.\n  Constraint: %s."}, /* 100 */
    {"NE_REAL_2", "NE_REAL_2:\n  On entry, %s = %g, %s = %g.\n  Constraint: %s."}, /* 101 */
    {"NE_REAL_3", "NE_REAL_3:\n  Error: Real 3."}, /* 102 */
    {"NE_REAL_4", "NE_REAL_4:\n  Error: Real 4."}, /* 103 */
    {"NE_REAL_5", "NE_REAL_5:\n  Error: Real 5."}, /* 104 */
    {"NE_REAL_6", "NE_REAL_6:\n  Error: Real 6."}, /* 105 */
    {"NE_ENUM_REAL_1", "NE_ENUM_REAL_1:\n  On entry, %s = %s, %s = %g.\n  Constraint: %s."}, /* 106 */
    {"NE_ENUM_REAL_2", "NE_ENUM_REAL_2:\n  Error: Enumeration real 2."}, /* 107 */
    {"NE_ENUM_REAL_3", "NE_ENUM_REAL_3:\n  Error: Enumeration real 3."}, /* 108 */
    {"NE_ENUM_REAL_4", "NE_ENUM_REAL_4:\n  Error: Enumeration real 4."}, /* 109 */
    {"NE_CONSTRAINT", "NE_CONSTRAINT:\n   General constraint: %s"}, /* 110 */
    {"NE_COMPLEX", "NE_COMPLEX:\n  Error: Complex."}, /* 111 */
    {"NE_INT_ARRAY_CONS", "NE_INT_ARRAY_CONS:\n  Error: Integer array constraint."}, /* 112 */
    {"NE_2_INT_ARRAY_CONS", "NE_2_INT_ARRAY_CONS:\n  Error: 2 integer array constraint."}, /* 113 */
    {"NE_2D_INT_ARRAY_CONS", "NE_2D_INT_ARRAY_CONS:\n  Error: 2d integer array constraint."}, /* 114 */
    {"NE_2D_REAL_ARRAY_CONS", "NE_2D_REAL_ARRAY_CONS:\n  Error: 2d real array constraint."}, /* 115 */
    {"NE_2D_1D_INT_ARRAYS_CONS", "NE_2D_1D_INT_ARRAYS_CONS:\n  Error: 2d 1d integer arrays constraint."}, /* 116 */
    {"NE_INT_ARG_ENUM_CONS", "NE_INT_ARG_ENUM_CONS:\n  Error: Integer argument enumeration constraint."}, /* 117 */
    {"NE_2_INT_ARG_ENUM_CONS", "NE_2_INT_ARG_ENUM_CONS:\n  Error: 2 integer argument enumeration constraint."}, /* 118 */
    {"NE_2_INTARR_INT", "NE_2_INTARR_INT:\n  Error: 2 integer array integer."}, /* 119 */
    {"NE_INTARR", "NE_INTARR:\n  On entry, %s[%ld] = %ld.\n  Constraint: %s."}, /* 120 */
    {"NE_INTARR_INT", "NE_INTARR_INT:\n  Error: Integer array integer."}, /* 121 */
    {"NE_INTARR_2_INT", "NE_INTARR_2_INT:\n  Error: Integer array 2 integer."}, /* 122 */
    {"NE_INTARR_3_INT", "NE_INTARR_3_INT:\n  Error: Integer array 3 integer."}, /* 123 */
    {"NE_REALARR", "NE_REALARR:\n  On entry, %s[%ld] = %g.\n  Constraint: %s."}, /* 124 */
    {"NE_INCOMP_ARRAYS", "NE_INCOMP_ARRAYS:\n  Error: Incompatible arrays."}, /* 125 */
    {"NE_REAL_MACH_PREC", "NE_REAL_MACH_PREC:\n  On entry, %s = %g, machine precision(X02AJC) = %g.\n  Constraint: %s."}, /* 126 */
    {"NE_REAL_INT", "NE_REAL_INT:\n  Error: Real integer."}, /* 127 */
    {"NE_REALARR_REAL", "NE_REALARR_REAL:\n  Error: Real array real."}, /* 128 */
    {"NW_INT", "NW_INT:\n  On exit, %s = %ld.\n  Trivial solution returned."}, /* 129 */
    {"NW_2_INT", "NW_2_INT:\n  Warning: 2 integer."}, /* 130 */
    {"NW_REAL_REALARR", "NW_REAL_REALARR:\n  Warning: Real real array."}, /* 131 */
    {"NE_INTARR_REALARR", "NE_INTARR_REALARR:\n  Error: Integer array real array."}, /* 132 */
    {"NE_COMPLEX_ZERO", "NE_COMPLEX_ZERO:\n  Error: Complex zero."}, /* 133 */
    {"NE_POLY_NOT_CONV", "NE_POLY_NOT_CONV:\n  Error: Poly not convergence."}, /* 134 */
    {"NE_POLY_UNFLOW", "NE_POLY_UNFLOW:\n  Error: Poly unflow."}, /* 135 */
    {"NE_POLY_OVFLOW", "NE_POLY_OVFLOW:\n  Error: Poly ovflow."}, /* 136 */
    {"NE_C02_OVERFLOW", "NE_C02_OVERFLOW:\n  Error: C02 overflow."}, /* 137 */
    {"NE_C02_NOT_CONV", "NE_C02_NOT_CONV:\n  Error: C02 not convergence."}, /* 138 */
    {"NE_FUNC_END_VAL", "NE_FUNC_END_VAL:\n  Error: Function end val."}, /* 139 */
    {"NE_PROBABLE_POLE", "NE_PROBABLE_POLE:\n  Error: Probable pole."}, /* 140 */
    {"NE_XTOL_TOO_SMALL", "NE_XTOL_TOO_SMALL:\n  Error: Xtol too small."}, /* 141 */
    {"NE_TOO_MANY_FUNC_EVAL", "NE_TOO_MANY_FUNC_EVAL:\n  Error: Too many function evaluation."}, /* 142 */
    {"NE_NO_IMPROVEMENT", "NE_NO_IMPROVEMENT:\n  Error: No improvement."}, /* 143 */
    {"NE_FACTOR_GT", "NE_FACTOR_GT:\n  Error: Factor greater than."}, /* 144 */
    {"NE_TOO_MANY_FACTORS", "NE_TOO_MANY_FACTORS:\n  Error: Too many factors."}, /* 145 */
    {"NE_C06_FACTOR_GT", "NE_C06_FACTOR_GT:\n  Error: C06 factor greater than."}, /* 146 */
    {"NE_C06_TOO_MANY_FACTORS", "NE_C06_TOO_MANY_FACTORS:\n  Error: C06 too many factors."}, /* 147 */
    {"NE_C06_NOT_TRIG", "NE_C06_NOT_TRIG:\n  Error: C06 not trig."}, /* 148 */
    {"NE_C06_FACTORS", "NE_C06_FACTORS:\n  Error: C06 factors."}, /* 149 */
    {"NE_QUAD_MAX_SUBDIV", "NE_QUAD_MAX_SUBDIV:\n  Error: Quadrature maximum subdivision."}, /* 150 */
    {"NE_QUAD_BAD_SUBDIV", "NE_QUAD_BAD_SUBDIV:\n  Error: Quadrature bad subdivision."}, /* 151 */
    {"NE_QUAD_BAD_SUBDIV_INTS", "NE_QUAD_BAD_SUBDIV_INTS:\n  Error: Quadrature bad subdivision ints."}, /* 152 */
    {"NE_QUAD_ROUNDOFF_TOL", "NE_QUAD_ROUNDOFF_TOL:\n  Error: Quadrature roundoff tolerance."}, /* 153 */
    {"NE_QUAD_ROUNDOFF_ABS_TOL", "NE_QUAD_ROUNDOFF_ABS_TOL:\n  Error: Quadrature roundoff abs tolerance."}, /* 154 */
    {"NE_QUAD_ROUNDOFF_EXTRAPL", "NE_QUAD_ROUNDOFF_EXTRAPL:\n  Error: Quadrature roundoff extrapolation."}, /* 155 */
    {"NE_QUAD_NO_CONV", "NE_QUAD_NO_CONV:\n  Error: Quadrature no convergence."}, /* 156 */
    {"NE_QUAD_BRKPTS_INVAL", "NE_QUAD_BRKPTS_INVAL:\n  Error: Quadrature break-points invalid."}, /* 157 */
    {"NE_QUAD_BAD_SUBDIV_INT", "NE_QUAD_BAD_SUBDIV_INT:\n  Error: Quadrature bad subdivision integer."}, /* 158 */
    {"NE_QUAD_MAX_INT", "NE_QUAD_MAX_INT:\n  Error: Quadrature maximum integer."}, /* 159 */
    {"NE_QUAD_EXTRAPL_INT", "NE_QUAD_EXTRAPL_INT:\n  Error: Quadrature extrapolation integer."}, /* 160 */
    {"NE_QUAD_MAX_SUBDIV_SPEC_INT", "NE_QUAD_MAX_SUBDIV_SPEC_INT:\n  Error: Quadrature maximum subdivision specified integer."}, /* 161 */
    {"NE_QUAD_ROUNDOFF_TOL_SPEC_INT", "NE_QUAD_ROUNDOFF_TOL_SPEC_INT:\n  Error: Quadrature roundoff tolerance specified integer."}, /* 162 */
    {"NE_QUAD_NO_CONV_SPEC_INT", "NE_QUAD_NO_CONV_SPEC_INT:\n  Error: Quadrature no convergence specified integer."}, /* 163 */
    {"NE_QUAD_DIVERGENCE_SPEC_INT", "NE_QUAD_DIVERGENCE_SPEC_INT:\n  Error: Quadrature divergence specified integer."}, /* 164 */
    {"NE_QUAD_BAD_SPEC_INT", "NE_QUAD_BAD_SPEC_INT:\n  Error: Quadrature bad specified integer."}, /* 165 */
    {"NE_QUAD_GAUSS_NPTS_RULE", "NE_QUAD_GAUSS_NPTS_RULE:\n  Error: Quadrature gauss points rule."}, /* 166 */
    {"NE_QUAD_GAUSS_CONS", "NE_QUAD_GAUSS_CONS:\n  Error: Quadrature gauss constraint."}, /* 167 */
    {"NE_QUAD_GAUSS_LAG_HER_WTS", "NE_QUAD_GAUSS_LAG_HER_WTS:\n  Error: Quadrature gauss lag Hermite weights."}, /* 168 */
    {"NE_QUAD_MAX_INTEGRAND_EVAL", "NE_QUAD_MAX_INTEGRAND_EVAL:\n  Error: Quadrature maximum integrand evaluation."}, /* 169 */
    {"NE_QUAD_MAX_INTEGRAND_CONS", "NE_QUAD_MAX_INTEGRAND_CONS:\n  Error: Quadrature maximum integrand constraint."}, /* 170 */
    {"NE_QUAD_FIRST_TWO_PTS_EQL", "NE_QUAD_FIRST_TWO_PTS_EQL:\n  Error: Quadrature first two pts eql."}, /* 171 */
    {"NE_XSOL_NOT_RESET", "NE_XSOL_NOT_RESET:\n  Error: Xsol not reset."}, /* 172 */
    {"NE_XSOL_SET_WRONG", "NE_XSOL_SET_WRONG:\n  Error: Xsol set wrong."}, /* 173 */
    {"NE_XSOL_INCONSIST", "NE_XSOL_INCONSIST:\n  Error: Xsol inconsist."}, /* 174 */
    {"NE_TOL_TOO_SMALL", "NE_TOL_TOO_SMALL:\n  Error: Tolerance too small."}, /* 175 */
    {"NE_TOL_PROGRESS", "NE_TOL_PROGRESS:\n  Error: Tolerance progress."}, /* 176 */
    {"NE_NO_SIGN_CHANGE", "NE_NO_SIGN_CHANGE:\n  Error: No sign change."}, /* 177 */
    {"NE_STATE", "NE_STATE:\n  Error: State."}, /* 178 */
    {"NE_NEQF_CHANGED", "NE_NEQF_CHANGED:\n  Error: Neqf changed."}, /* 179 */
    {"NE_NEQG_CHANGED", "NE_NEQG_CHANGED:\n  Error: Neqg changed."}, /* 180 */
    {"NE_VECTOL_CHANGED", "NE_VECTOL_CHANGED:\n  Error: Vectol changed."}, /* 181 */
    {"NE_REAL_LT_COND", "NE_REAL_LT_COND:\n  Error: Real less than cond."}, /* 182 */
    {"NE_NO_INTEGRATE", "NE_NO_INTEGRATE:\n  Error: No integrate."}, /* 183 */
    {"NE_NO_STEPS", "NE_NO_STEPS:\n  Error: No steps."}, /* 184 */
    {"NW_EXTRAPOLATION", "NW_EXTRAPOLATION:\n  Warning: Extrapolation."}, /* 185 */
    {"NE_NWANT_GT", "NE_NWANT_GT:\n  Error: Nwant greater than."}, /* 186 */
    {"NE_NO_SETUP", "NE_NO_SETUP:\n  Error: No setup."}, /* 187 */
    {"NE_SETUP_ERROR", "NE_SETUP_ERROR:\n  Error: Setup error."}, /* 188 */
    {"NE_T_SAME_TOUT", "NE_T_SAME_TOUT:\n  Error: T same tout."}, /* 189 */
    {"NE_T_CHANGED", "NE_T_CHANGED:\n  Error: T changed."}, /* 190 */
    {"NE_DIRECTION_CHANGE", "NE_DIRECTION_CHANGE:\n  Error: Direction change."}, /* 191 */
    {"NE_TOUT_TCRIT", "NE_TOUT_TCRIT:\n  Error: Tout tcrit."}, /* 192 */
    {"NE_MAX_STEP", "NE_MAX_STEP:\n  Error: Maximum step."}, /* 193 */
    {"NE_ODE_TOL", "NE_ODE_TOL:\n  Error: Ode tolerance."}, /* 194 */
    {"NE_WEIGHT_ZERO", "NE_WEIGHT_ZERO:\n  Error: Weight zero."}, /* 195 */
    {"NE_STIFF_PROBLEM", "NE_STIFF_PROBLEM:\n  Error: Stiff problem."}, /* 196 */
    {"NE_SINGULAR_POINT", "NE_SINGULAR_POINT:\n  Error: Singular point."}, /* 197 */
    {"NE_NO_G_FUN", "NE_NO_G_FUN:\n  Error: No g function."}, /* 198 */
    {"NE_NEQF", "NE_NEQF:\n  Error: Neqf."}, /* 199 */
    {"NE_NEQ", "NE_NEQ:\n  Error: Neq."}, /* 200 */
    {"NE_LF_B_VAL", "NE_LF_B_VAL:\n  Error: Lf b val."}, /* 201 */
    {"NE_RT_B_VAL", "NE_RT_B_VAL:\n  Error: Rt b val."}, /* 202 */
    {"NE_LFRT_B_VAL", "NE_LFRT_B_VAL:\n  Error: Lfrt b val."}, /* 203 */
    {"NE_LF_B_MESH", "NE_LF_B_MESH:\n  Error: Lf b mesh."}, /* 204 */
    {"NE_RT_B_MESH", "NE_RT_B_MESH:\n  Error: Rt b mesh."}, /* 205 */
    {"NE_CONV_MESH", "NE_CONV_MESH:\n  Error: Convergence mesh."}, /* 206 */
    {"NE_CONV_MESH_INIT", "NE_CONV_MESH_INIT:\n  Error: Convergence mesh initialised."}, /* 207 */
    {"NE_CONV_ROUNDOFF", "NE_CONV_ROUNDOFF:\n  Error: Convergence roundoff."}, /* 208 */
    {"NE_CONV_CONT", "NE_CONV_CONT:\n  Error: Convergence cont."}, /* 209 */
    {"NE_CONV_JACOBG", "NE_CONV_JACOBG:\n  Error: Convergence jacobg."}, /* 210 */
    {"NE_CONV_CONT_DEP", "NE_CONV_CONT_DEP:\n  Error: Convergence cont dep."}, /* 211 */
    {"NE_CONV_CONT_DELEPS", "NE_CONV_CONT_DELEPS:\n  Error: Convergence cont deleps."}, /* 212 */
    {"NE_BOUND_COND_ROW", "NE_BOUND_COND_ROW:\n  Error: Bound cond row."}, /* 213 */
    {"NE_BOUND_COND_COL", "NE_BOUND_COND_COL:\n  Error: Bound cond col."}, /* 214 */
    {"NE_BOUND_COND_MAT", "NE_BOUND_COND_MAT:\n  Error: Bound cond matrix."}, /* 215 */
    {"NE_BOUND_COND_LC", "NE_BOUND_COND_LC:\n  Error: Bound cond lc."}, /* 216 */
    {"NE_BOUND_COND_NLC", "NE_BOUND_COND_NLC:\n  Error: Bound cond nlc."}, /* 217 */
    {"NE_INVALID_FUN_JAC", "NE_INVALID_FUN_JAC:\n  Error: Invalid function jac."}, /* 218 */
    {"NE_INVALID_FUN_JAC_CONT", "NE_INVALID_FUN_JAC_CONT:\n  Error: Invalid function jac cont."}, /* 219 */
    {"NE_INVALID_FUN_JAC_NO_CONT", "NE_INVALID_FUN_JAC_NO_CONT:\n  Error: Invalid function jac no cont."}, /* 220 */
    {"NE_INVALID_FUN_NO_JAC_CONT", "NE_INVALID_FUN_NO_JAC_CONT:\n  Error: Invalid function no jac cont."}, /* 221 */
    {"NE_RK_INVALID_CALL", "NE_RK_INVALID_CALL:\n  Error: Rk invalid call."}, /* 222 */
    {"NE_PREV_CALL", "NE_PREV_CALL:\n  Error: Prev call."}, /* 223 */
    {"NE_PREV_CALL_INI", "NE_PREV_CALL_INI:\n  Error: Prev call ini."}, /* 224 */
    {"NE_RK_TGOT_EQ_TEND", "NE_RK_TGOT_EQ_TEND:\n  Error: Rk tgot equal tend."}, /* 225 */
    {"NE_RK_TGOT_RANGE_TEND", "NE_RK_TGOT_RANGE_TEND:\n  Error: Rk tgot range tend."}, /* 226 */
    {"NE_RK_TGOT_RANGE_TEND_CLOSE", "NE_RK_TGOT_RANGE_TEND_CLOSE:\n  Error: Rk tgot range tend close."}, /* 227 */
    {"NE_RK_TWANT_CLOSE_TGOT", "NE_RK_TWANT_CLOSE_TGOT:\n  Error: Rk twant close tgot."}, /* 228 */
    {"NE_RK_PCC_METHOD", "NE_RK_PCC_METHOD:\n  Error: Rk pcc method."}, /* 229 */
    {"NE_RK_PDC_TEND", "NE_RK_PDC_TEND:\n  Error: Rk pdc tend."}, /* 230 */
    {"NE_RK_PDC_STEP", "NE_RK_PDC_STEP:\n  Error: Rk pdc step."}, /* 231 */
    {"NE_RK_PDC_POINTS", "NE_RK_PDC_POINTS:\n  Error: Rk pdc points."}, /* 232 */
    {"NE_RK_PDC_GLOBAL_ERROR_T", "NE_RK_PDC_GLOBAL_ERROR_T:\n  Error: Rk pdc global error t."}, /* 233 */
    {"NE_RK_PDC_GLOBAL_ERROR_S", "NE_RK_PDC_GLOBAL_ERROR_S:\n  Error: Rk pdc global error s."}, /* 234 */
    {"NE_MISSING_CALL", "NE_MISSING_CALL:\n  Error: Missing call."}, /* 235 */
    {"NE_RK_DIRECTION_POS", "NE_RK_DIRECTION_POS:\n  Error: Rk direction positive."}, /* 236 */
    {"NE_RK_DIRECTION_NEG", "NE_RK_DIRECTION_NEG:\n  Error: Rk direction negative."}, /* 237 */
    {"NE_RK_STEP", "NE_RK_STEP:\n  Error: Rk step."}, /* 238 */
    {"NE_ERRASS_REQ", "NE_ERRASS_REQ:\n  Error: Errass required."}, /* 239 */
    {"NE_RK_STIFF", "NE_RK_STIFF:\n  Error: Rk stiff."}, /* 240 */
    {"NE_RK_PX_METHOD", "NE_RK_PX_METHOD:\n  Error: Rk px method."}, /* 241 */
    {"NW_RK_TOO_MANY", "NW_RK_TOO_MANY:\n  Warning: Rk too many."}, /* 242 */
    {"NE_RK_NOSTEP", "NE_RK_NOSTEP:\n  Error: Rk nostep."}, /* 243 */
    {"NE_MEMORY_FREED", "NE_MEMORY_FREED:\n  Error: Memory freed."}, /* 244 */
    {"NE_NOT_MONOTONIC", "NE_NOT_MONOTONIC:\n  Error: Not monotonic."}, /* 245 */
    {"NW_EXTRAPOLATE", "NW_EXTRAPOLATE:\n  Warning: Extrapolate."}, /* 246 */
    {"NE_ABSCI_OUTSIDE_KNOT_INTVL", "NE_ABSCI_OUTSIDE_KNOT_INTVL:\n  Error: Absci outside knot interval."}, /* 247 */
    {"NE_KNOTS_OUTSIDE_DATA_INTVL", "NE_KNOTS_OUTSIDE_DATA_INTVL:\n  Error: Knots outside data interval."}, /* 248 */
    {"NE_WEIGHTS_NOT_POSITIVE", "NE_WEIGHTS_NOT_POSITIVE:\n  Error: Weights not positive."}, /* 249 */
    {"NE_SW_COND_FAIL", "NE_SW_COND_FAIL:\n  Error: Sum of weights cond fail."}, /* 250 */
    {"NW_INTERVAL_EXTRAPOLATE", "NW_INTERVAL_EXTRAPOLATE:\n  Warning: Interval extrapolate."}, /* 251 */
    {"NE_DATA_ILL_CONDITIONED", "NE_DATA_ILL_CONDITIONED:\n  Error: Data ill conditioned."}, /* 252 */
    {"NE_KNOTS_DISTINCT_ABSCI_CONS", "NE_KNOTS_DISTINCT_ABSCI_CONS:\n  Error: Knots distinct absci constraint."}, /* 253 */
    {"NE_ALL_DATA_COLLINEAR", "NE_ALL_DATA_COLLINEAR:\n  Error: All data collinear."}, /* 254 */
    {"NE_DATA_NOT_UNIQUE", "NE_DATA_NOT_UNIQUE:\n  Error: Data not unique."}, /* 255 */
    {"NE_NUM_PARAM_INVALID", "NE_NUM_PARAM_INVALID:\n  Error: Number parameter invalid."}, /* 256 */
    {"NE_RAD_PARAM_INVALID", "NE_RAD_PARAM_INVALID:\n  Error: Rad parameter invalid."}, /* 257 */
    {"NW_SPARSE_DATA_FIT", "NW_SPARSE_DATA_FIT:\n  Warning: Sparse data fit."}, /* 258 */
    {"NE_TRIANG_INVALID", "NE_TRIANG_INVALID:\n  Error: Triangulation invalid."}, /* 259 */
    {"NW_VALUE_EXTRAPOLATED", "NW_VALUE_EXTRAPOLATED:\n  Warning: Value extrapolated."}, /* 260 */
    {"NE_BAD_INTERPOLANT", "NE_BAD_INTERPOLANT:\n  Error: Bad interpolant."}, /* 261 */
    {"NE_KNOTS_CONS", "NE_KNOTS_CONS:\n  Error: Knots constraint."}, /* 262 */
    {"NE_SPLINE_COEFF_CONV", "NE_SPLINE_COEFF_CONV:\n  Error: Spline coefficient convergence."}, /* 263 */
    {"NE_END_KNOTS_CONS", "NE_END_KNOTS_CONS:\n  Error: End knots constraint."}, /* 264 */
    {"NE_KNOTS_COORD_CONS", "NE_KNOTS_COORD_CONS:\n  Error: Knots coord constraint."}, /* 265 */
    {"NE_POINT_OUTSIDE_RECT", "NE_POINT_OUTSIDE_RECT:\n  Error: Point outside rect."}, /* 266 */
    {"NE_KNOTS_COINCIDE", "NE_KNOTS_COINCIDE:\n  Error: Knots coincide."}, /* 267 */
    {"NE_PANEL_ORDER", "NE_PANEL_ORDER:\n  Error: Panel order."}, /* 268 */
    {"NE_ALL_ELEMENTS_EQUAL", "NE_ALL_ELEMENTS_EQUAL:\n  Error: All elements equal."}, /* 269 */
    {"NE_NUM_KNOTS_2D_GT_RECT", "NE_NUM_KNOTS_2D_GT_RECT:\n  Error: Number knots 2d greater than rect."}, /* 270 */
    {"NE_NUM_KNOTS_2D_GT_SCAT", "NE_NUM_KNOTS_2D_GT_SCAT:\n  Error: Number knots 2d greater than scat."}, /* 271 */
    {"NE_NUM_COEFF_GT", "NE_NUM_COEFF_GT:\n  Error: Number coefficient greater than."}, /* 272 */
    {"NE_NUM_KNOTS_1D_GT", "NE_NUM_KNOTS_1D_GT:\n  Error: Number knots 1d greater than."}, /* 273 */
    {"NE_NO_ADDITIONAL_KNOTS", "NE_NO_ADDITIONAL_KNOTS:\n  Error: No additional knots."}, /* 274 */
    {"NE_ENUMTYPE_WARM", "NE_ENUMTYPE_WARM:\n  Error: Enumtype warm."}, /* 275 */
    {"NE_NUM_KNOTS_2D_LT", "NE_NUM_KNOTS_2D_LT:\n  Error: Number knots 2d less than."}, /* 276 */
    {"NE_SF_D_K_CONS", "NE_SF_D_K_CONS:\n  Error: Sf d k constraint."}, /* 277 */
    {"NE_SPLINE_RANGE_INVALID", "NE_SPLINE_RANGE_INVALID:\n  Error: Spline range invalid."}, /* 278 */
    {"NE_NON_ZERO_WEIGHTS", "NE_NON_ZERO_WEIGHTS:\n  Error: Non zero weights."}, /* 279 */
    {"NE_INVALID_XCAP", "NE_INVALID_XCAP:\n  Error: Invalid xcap."}, /* 280 */
    {"NE_OPT_NOT_INIT", "NE_OPT_NOT_INIT:\n  Error: Optional not initialised."}, /* 281 */
    {"NE_INVALID_OPTION", "NE_INVALID_OPTION:\n  Error: Invalid option."}, /* 282 */
    {"NE_FIELD_UNKNOWN", "NE_FIELD_UNKNOWN:\n  Error: Field unknown."}, /* 283 */
    {"NE_INVALID_OPTION_NAME", "NE_INVALID_OPTION_NAME:\n  Error: Invalid option name."}, /* 284 */
    {"NE_INVALID_VALUE", "NE_INVALID_VALUE:\n  Error: Invalid value."}, /* 285 */
    {"NE_NO_VALUE", "NE_NO_VALUE:\n  Error: No value."}, /* 286 */
    {"NE_UNBALANCED_COMMENT", "NE_UNBALANCED_COMMENT:\n  Error: Unbalanced comment."}, /* 287 */
    {"NW_SMALL_DERIV", "NW_SMALL_DERIV:\n  Warning: Small deriv."}, /* 288 */
    {"NE_DERIV_ERRORS", "NE_DERIV_ERRORS:\n  Error: Deriv errors."}, /* 289 */
    {"NE_GRAD_TOO_SMALL", "NE_GRAD_TOO_SMALL:\n  Error: Grad too small."}, /* 290 */
    {"NE_SVD_FAIL", "NE_SVD_FAIL:\n  Error: Singular value decomposition fail."}, /* 291 */
    {"NW_NO_IMPROVEMENT", "NW_NO_IMPROVEMENT:\n  Warning: No improvement."}, /* 292 */
    {"NW_COND_MIN", "NW_COND_MIN:\n  Warning: Cond minimum."}, /* 293 */
    {"NW_TOO_MANY_ITER", "NW_TOO_MANY_ITER:\n  Warning: Too many iteration."}, /* 294 */
    {"NW_STEP_BOUND_TOO_SMALL", "NW_STEP_BOUND_TOO_SMALL:\n  Warning: Step bound too small."}, /* 295 */
    {"NE_MISSING_DERIV", "NE_MISSING_DERIV:\n  Error: Missing deriv."}, /* 296 */
    {"NE_INVALID_TEXT_RANGE", "NE_INVALID_TEXT_RANGE:\n  Error: Invalid text range."}, /* 297 */
    {"NE_INVALID_ENUM_RANGE", "NE_INVALID_ENUM_RANGE:\n  Error: Invalid enumeration range."}, /* 298 */
    {"NE_NOT_FUN_NAME", "NE_NOT_FUN_NAME:\n  Error: Not function name."}, /* 299 */
    {"NE_CHOLESKY_OVERFLOW", "NE_CHOLESKY_OVERFLOW:\n  Error: Cholesky overflow."}, /* 300 */
    {"NW_LOCAL_SEARCH", "NW_LOCAL_SEARCH:\n  Warning: Local search."}, /* 301 */
    {"NE_BOUND", "NE_BOUND:\n  Error: Bound."}, /* 302 */
    {"NE_BOUND_LCON", "NE_BOUND_LCON:\n  Error: Bound lcon."}, /* 303 */
    {"NE_BOUND_NLCON", "NE_BOUND_NLCON:\n  Error: Bound nlcon."}, /* 304 */
    {"NE_BOUND_EQ", "NE_BOUND_EQ:\n  Error: Bound equal."}, /* 305 */
    {"NE_BOUND_EQ_LCON", "NE_BOUND_EQ_LCON:\n  Error: Bound equal lcon."}, /* 306 */
    {"NE_BOUND_EQ_NLCON", "NE_BOUND_EQ_NLCON:\n  Error: Bound equal nlcon."}, /* 307 */
    {"NE_FD_INT", "NE_FD_INT:\n  Error: Fd integer."}, /* 308 */
    {"NE_HESD", "NE_HESD:\n  Error: Hesd."}, /* 309 */
    {"NE_CANCEL_ERR", "NE_CANCEL_ERR:\n  Error: Cancel err."}, /* 310 */
    {"NE_INIT_MEM", "NE_INIT_MEM:\n  Error: Initialised mem."}, /* 311 */
    {"NE_NO_MEM", "NE_NO_MEM:\n  Error: No mem."}, /* 312 */
    {"NE_SINGULAR_VALUES", "NE_SINGULAR_VALUES:\n  Error: Singular values."}, /* 313 */
    {"NW_LIN_DEPEND", "NW_LIN_DEPEND:\n  Warning: Lin depend."}, /* 314 */
    {"NE_SVD_ZERO", "NE_SVD_ZERO:\n  Error: Singular value decomposition zero."}, /* 315 */
    {"NE_C_OVERFLOW", "NE_C_OVERFLOW:\n  Error: C overflow."}, /* 316 */
    {"NW_DEAD_POINT", "NW_DEAD_POINT:\n  Warning: Dead point."}, /* 317 */
    {"NW_SOLN_NOT_UNIQUE", "NW_SOLN_NOT_UNIQUE:\n  Warning: Solution not unique."}, /* 318 */
    {"NE_UNBOUNDED", "NE_UNBOUNDED:\n  Error: Unbounded."}, /* 319 */
    {"NW_NOT_FEASIBLE", "NW_NOT_FEASIBLE:\n  Warning: Not feasible."}, /* 320 */
    {"NW_LIN_NOT_FEASIBLE", "NW_LIN_NOT_FEASIBLE:\n  Warning: Lin not feasible."}, /* 321 */
    {"NW_NONLIN_NOT_FEASIBLE", "NW_NONLIN_NOT_FEASIBLE:\n  Warning: Nonlin not feasible."}, /* 322 */
    {"NE_HESS_TOO_BIG", "NE_HESS_TOO_BIG:\n  Error: Hessian too big."}, /* 323 */
    {"NW_OVERFLOW_WARN", "NW_OVERFLOW_WARN:\n  Warning: Overflow warn."}, /* 324 */
    {"NE_STATE_VAL", "NE_STATE_VAL:\n  Error: State val."}, /* 325 */
    {"NE_STR_UNKNOWN", "NE_STR_UNKNOWN:\n  Error: Str unknown."}, /* 326 */
    {"NE_STOP_LT_START", "NE_STOP_LT_START:\n  Error: Stop less than start."}, /* 327 */
    {"NE_CHECK_LT_ONE", "NE_CHECK_LT_ONE:\n  Error: Check less than one."}, /* 328 */
    {"NE_WARM_START", "NE_WARM_START:\n  Error: Warm start."}, /* 329 */
    {"NE_CVEC_NULL", "NE_CVEC_NULL:\n  Error: Cvec null."}, /* 330 */
    {"NE_H_NULL", "NE_H_NULL:\n  Error: H null."}, /* 331 */
    {"NE_H_NULL_QP", "NE_H_NULL_QP:\n  Error: H null qp."}, /* 332 */
    {"NW_NOT_CONVERGED", "NW_NOT_CONVERGED:\n  Warning: Not converged."}, /* 333 */
    {"NW_KT_CONDITIONS", "NW_KT_CONDITIONS:\n  Warning: Kt conditions."}, /* 334 */
    {"NE_INVALID_BEGIN", "NE_INVALID_BEGIN:\n  Error: Invalid begin."}, /* 335 */
    {"NW_LAGRANGE_MULT_ZERO", "NW_LAGRANGE_MULT_ZERO:\n  Warning: Lagrange mult zero."}, /* 336 */
    {"NE_CYCLING", "NE_CYCLING:\n  Error: Cycling."}, /* 337 */
    {"NE_OBJ_BOUND", "NE_OBJ_BOUND:\n  Error: Obj bound."}, /* 338 */
    {"NE_DUPLICATE_ELEMENT", "NE_DUPLICATE_ELEMENT:\n  Error: Duplicate element."}, /* 339 */
    {"NE_HESS_INDEF", "NE_HESS_INDEF:\n  Error: Hessian indef."}, /* 340 */
    {"NE_BASIS_ILL_COND", "NE_BASIS_ILL_COND:\n  Error: Basis ill cond."}, /* 341 */
    {"NE_OUT_OF_WORKSPACE", "NE_OUT_OF_WORKSPACE:\n  Error: Out of workspace."}, /* 342 */
    {"NE_BASIS_SINGULAR", "NE_BASIS_SINGULAR:\n  Error: Basis singular."}, /* 343 */
    {"NE_NULL_QPHX", "NE_NULL_QPHX:\n  Error: Null qphx."}, /* 344 */
    {"NE_NAME_TOO_LONG", "NE_NAME_TOO_LONG:\n  Error: Name too long."}, /* 345 */
    {"NE_STATE_VAL_ARG", "NE_STATE_VAL_ARG:\n  Error: State val argument."}, /* 346 */
    {"NE_NAMES_NOT_KIV_MEM", "NE_NAMES_NOT_KIV_MEM:\n  Error: Names not kiv mem."}, /* 347 */
    {"NE_NULL_ARGUMENT", "NE_NULL_ARGUMENT:\n  Error: Null argument."}, /* 348 */
    {"NE_B_NULL", "NE_B_NULL:\n  Error: B null."}, /* 349 */
    {"NW_MAX_FUN", "NW_MAX_FUN:\n  Warning: Maximum function."}, /* 350 */
    {"NE_H_FORWARD_NULL", "NE_H_FORWARD_NULL:\n  Error: H forward null."}, /* 351 */
    {"NW_DERIV_INFO", "NW_DERIV_INFO:\n  Warning: Deriv info."}, /* 352 */
    {"NE_INFEASIBLE", "NE_INFEASIBLE:\n  Error: Infeasible."}, /* 353 */
    {"NE_LIN_NOT_FEASIBLE", "NE_LIN_NOT_FEASIBLE:\n  Error: Lin not feasible."}, /* 354 */
    {"NE_NONLIN_NOT_FEASIBLE", "NE_NONLIN_NOT_FEASIBLE:\n  Error: Nonlin not feasible."}, /* 355 */
    {"NE_MAYBE_UNBOUNDED", "NE_MAYBE_UNBOUNDED:\n  Error: Maybe unbounded."}, /* 356 */
    {"NE_TOO_MANY_ITER", "NE_TOO_MANY_ITER:\n  Error: Too many iteration."}, /* 357 */
    {"NE_TOO_MANY_MAJOR_ITER", "NE_TOO_MANY_MAJOR_ITER:\n  Error: Too many major iteration."}, /* 358 */
    {"NE_TOO_MANY_MINOR_ITER", "NE_TOO_MANY_MINOR_ITER:\n  Error: Too many minor iteration."}, /* 359 */
    {"NE_SUPERBASICS_LIMIT", "NE_SUPERBASICS_LIMIT:\n  Error: Superbasics limit."}, /* 360 */
    {"NE_OBJ_DERIV_ERRORS", "NE_OBJ_DERIV_ERRORS:\n  Error: Obj deriv errors."}, /* 361 */
    {"NE_CON_DERIV_ERRORS", "NE_CON_DERIV_ERRORS:\n  Error: Con deriv errors."}, /* 362 */
    {"NE_NO_IMPROVE", "NE_NO_IMPROVE:\n  Error: No improve."}, /* 363 */
    {"NE_CANNOT_CALCULATE", "NE_CANNOT_CALCULATE:\n  Error: Cannot calculate."}, /* 364 */
    {"NE_NOT_REQUIRED_ACC", "NE_NOT_REQUIRED_ACC:\n  Error: Not required accuracy."}, /* 365 */
    {"NE_SINGULAR", "NE_SINGULAR:\n  Error: Singular."}, /* 366 */
    {"NE_NOT_POS_DEF", "NE_NOT_POS_DEF:\n  Error: Not positive definite."}, /* 367 */
    {"NE_NOT_POS_DEF_FACT", "NE_NOT_POS_DEF_FACT:\n  Error: Not positive definite factorisation."}, /* 368 */
    {"NE_ZERO_DIAG", "NE_ZERO_DIAG:\n  Error: Zero diagonal."}, /* 369 */
    {"NE_NOT_UNIT_DIAG", "NE_NOT_UNIT_DIAG:\n  Error: Not unit diagonal."}, /* 370 */
    {"NE_TOO_MANY_ITERATIONS", "NE_TOO_MANY_ITERATIONS:\n  Error: Too many iterations."}, /* 371 */
    {"NE_TDQ_LT_M", "NE_TDQ_LT_M:\n  Error: Tdq less than m."}, /* 372 */
    {"NE_TDQ_LT_N", "NE_TDQ_LT_N:\n  Error: Tdq less than n."}, /* 373 */
    {"NE_TDP_LT_N", "NE_TDP_LT_N:\n  Error: Tdp less than n."}, /* 374 */
    {"NE_QR_NOT_CONV", "NE_QR_NOT_CONV:\n  Error: QR not convergence."}, /* 375 */
    {"NE_RANK_LT_N", "NE_RANK_LT_N:\n  Error: Rank less than n."}, /* 376 */
    {"NE_RANK_LT_NOT_UNIQ", "NE_RANK_LT_NOT_UNIQ:\n  Error: Rank less than not uniq."}, /* 377 */
    {"NE_ITER_FAIL_CONV", "NE_ITER_FAIL_CONV:\n  Error: Iteration fail convergence."}, /* 378 */
    {"NE_DIAG_IMAG_NON_ZERO", "NE_DIAG_IMAG_NON_ZERO:\n  Error: Diagonal imag non zero."}, /* 379 */
    {"NE_SINGULAR_DET_ZERO", "NE_SINGULAR_DET_ZERO:\n  Error: Singular det zero."}, /* 380 */
    {"NE_DET_OVERFLOW", "NE_DET_OVERFLOW:\n  Error: Det overflow."}, /* 381 */
    {"NE_DET_UNDERFLOW", "NE_DET_UNDERFLOW:\n  Error: Det underflow."}, /* 382 */
    {"NE_ITERATIONS_QZ", "NE_ITERATIONS_QZ:\n  Error: Iterations qz."}, /* 383 */
    {"NE_MATRIX_NOT_ZERO", "NE_MATRIX_NOT_ZERO:\n  Error: Matrix not zero."}, /* 384 */
    {"NE_QR_FAIL_CONV", "NE_QR_FAIL_CONV:\n  Error: QR fail convergence."}, /* 385 */
    {"NE_MAT_SINGULAR", "NE_MAT_SINGULAR:\n  Error: Matrix singular."}, /* 386 */
    {"NE_QR_FAIL", "NE_QR_FAIL:\n  Error: QR fail."}, /* 387 */
    {"NE_REQD_EIGVAL", "NE_REQD_EIGVAL:\n  Error: Required eigenvalue."}, /* 388 */
    {"NE_EIGVEC", "NE_EIGVEC:\n  Error: Eigenvector."}, /* 389 */
    {"NE_FORMAT_LEN", "NE_FORMAT_LEN:\n  Error: Format len."}, /* 390 */
    {"NE_INVALID_FORMAT", "NE_INVALID_FORMAT:\n  Error: Invalid format."}, /* 391 */
    {"NE_COL_WIDTH", "NE_COL_WIDTH:\n  Error: Col width."}, /* 392 */
    {"NE_EXCHANGE", "NE_EXCHANGE:\n  Error: Exchange."}, /* 393 */
    {"NE_REORDER", "NE_REORDER:\n  Error: Reorder."}, /* 394 */
    {"NE_PERTURBED", "NE_PERTURBED:\n  Error: Perturbed."}, /* 395 */
    {"NE_SYMM_MATRIX", "NE_SYMM_MATRIX:\n  Error: Symm matrix."}, /* 396 */
    {"NE_ZERO_DIAGONAL_ELEM", "NE_ZERO_DIAGONAL_ELEM:\n  Error: Zero diagonal element."}, /* 397 */
    {"NE_PRECOND_NOT_POS_DEF", "NE_PRECOND_NOT_POS_DEF:\n  Error: Precond not positive definite."}, /* 398 */
    {"NE_COEFF_NOT_POS_DEF", "NE_COEFF_NOT_POS_DEF:\n  Error: Coefficient not positive definite."}, /* 399 */
    {"NE_NOT_REQ_ACC", "NE_NOT_REQ_ACC:\n  Error: Not required accuracy."}, /* 400 */
    {"NE_ACC_LIMIT", "NE_ACC_LIMIT:\n  Error: Accuracy limit."}, /* 401 */
    {"NE_SYMM_MATRIX_DUP", "NE_SYMM_MATRIX_DUP:\n  Error: Symm matrix dup."}, /* 402 */
    {"NE_INVALID_ROW_PIVOT", "NE_INVALID_ROW_PIVOT:\n  Error: Invalid row pivot."}, /* 403 */
    {"NE_LA_TOO_SMALL", "NE_LA_TOO_SMALL:\n  Error: La too small."}, /* 404 */
    {"NE_INVALID_SCS", "NE_INVALID_SCS:\n  Error: Invalid scs."}, /* 405 */
    {"NE_INVALID_SCS_PRECOND", "NE_INVALID_SCS_PRECOND:\n  Error: Invalid scs precond."}, /* 406 */
    {"NE_NON_ZERO_DUP", "NE_NON_ZERO_DUP:\n  Error: Non zero dup."}, /* 407 */
    {"NE_ZERO_COEFF", "NE_ZERO_COEFF:\n  Error: Zero coefficient."}, /* 408 */
    {"NE_INVALID_CS", "NE_INVALID_CS:\n  Error: Invalid cs."}, /* 409 */
    {"NE_INVALID_CS_PRECOND", "NE_INVALID_CS_PRECOND:\n  Error: Invalid cs precond."}, /* 410 */
    {"NE_INVALID_ROWCOL_PIVOT", "NE_INVALID_ROWCOL_PIVOT:\n  Error: Invalid rowcol pivot."}, /* 411 */
    {"NE_NONSYMM_MATRIX", "NE_NONSYMM_MATRIX:\n  Error: Nonsymm matrix."}, /* 412 */
    {"NE_NONSYMM_MATRIX_DUP", "NE_NONSYMM_MATRIX_DUP:\n  Error: Nonsymm matrix dup."}, /* 413 */
    {"NE_NEG_WEIGHT", "NE_NEG_WEIGHT:\n  On entry, at least one of the weights is negative."}, /* 414 */
    {"NE_CASES_ZERO", "NE_CASES_ZERO:\n  Number of valid cases is 0."}, /* 415 */
    {"NE_CASES_ONE", "NE_CASES_ONE:\n  Number of valid cases is 1."}, /* 416 */
    {"NE_FUN_INF", "NE_FUN_INF:\n  Error: Function inf."}, /* 417 */
    {"NE_GAM_NOT_CONV", "NE_GAM_NOT_CONV:\n  Error: Gam not convergence."}, /* 418 */
    {"NE_RES_NOT_ACC", "NE_RES_NOT_ACC:\n  Error: Result not accuracy."}, /* 419 */
    {"NE_ALG_NOT_CONV", "NE_ALG_NOT_CONV:\n  The algorithm has failed to converge in %1ld iterations."}, /* 420 */
    {"NE_SOL_CLOSE_TO_ZERO", "NE_SOL_CLOSE_TO_ZERO:\n  Error: Solution close to zero."}, /* 421 */
    {"NE_SOL_NOT_CONV", "NE_SOL_NOT_CONV:\n  Error: Solution not convergence."}, /* 422 */
    {"NE_ACC_IN_DOUBT", "NE_ACC_IN_DOUBT:\n  Error: Accuracy in doubt."}, /* 423 */
    {"NE_PROBAB_CLOSE_TO_TAIL", "NE_PROBAB_CLOSE_TO_TAIL:\n  Error: Probab close to tail."}, /* 424 */
    {"NE_ARG_TOO_LARGE", "NE_ARG_TOO_LARGE:\n  Error: Argument too large."}, /* 425 */
    {"NE_VARIANCE_TOO_LARGE", "NE_VARIANCE_TOO_LARGE:\n  Error: Variance too large."}, /* 426 */
    {"NE_SAMPLES_NOT_IN_ORDER", "NE_SAMPLES_NOT_IN_ORDER:\n  Error: Samples not in order."}, /* 427 */
    {"NE_SAMPLES_ARE_ALL_EQUAL", "NE_SAMPLES_ARE_ALL_EQUAL:\n  Error: Samples are all equal."}, /* 428 */
    {"NE_NORMAL_SCORE_EST", "NE_NORMAL_SCORE_EST:\n  Error: Normal score est."}, /* 429 */
    {"NE_SERIES", "NE_SERIES:\n  Error: Series."}, /* 430 */
    {"NE_PROBABILITY", "NE_PROBABILITY:\n  Error: Probability."}, /* 431 */
    {"NE_POISSON_WEIGHT", "NE_POISSON_WEIGHT:\n  Error: Poisson weight."}, /* 432 */
    {"NE_TERM_LARGE", "NE_TERM_LARGE:\n  Error: Term large."}, /* 433 */
    {"NE_CHI_PROB", "NE_CHI_PROB:\n  Error: Chi probability."}, /* 434 */
    {"NE_CONV", "NE_CONV:\n  Error: Convergence."}, /* 435 */
    {"NE_PROB_F", "NE_PROB_F:\n  Error: Probability f."}, /* 436 */
    {"NE_PROB_F_INIT", "NE_PROB_F_INIT:\n  Error: Probability f initialised."}, /* 437 */
    {"NE_PROB_LIMIT", "NE_PROB_LIMIT:\n  Error: Probability limit."}, /* 438 */
    {"NE_PROB_B_INIT", "NE_PROB_B_INIT:\n  Error: Probability b initialised."}, /* 439 */
    {"NE_BAD_SX_OR_IP", "NE_BAD_SX_OR_IP:\n  Error: Bad sx or ip."}, /* 440 */
    {"NE_ZERO_DOF_RESID", "NE_ZERO_DOF_RESID:\n  Error: Zero degrees of freedom residual."}, /* 441 */
    {"NE_SVD_NOT_CONV", "NE_SVD_NOT_CONV:\n  Error: Singular value decomposition not convergence."}, /* 442 */
    {"NE_MAT_NOT_UPD", "NE_MAT_NOT_UPD:\n  Error: Matrix not upd."}, /* 443 */
    {"NE_RSS_NOT_UPD", "NE_RSS_NOT_UPD:\n  Error: Rss not upd."}, /* 444 */
    {"NE_DOF_LE_ZERO", "NE_DOF_LE_ZERO:\n  Error: Degrees of freedom less than or equal zero."}, /* 445 */
    {"NE_NVAR_NOT_IND", "NE_NVAR_NOT_IND:\n  Error: Nvar not ind."}, /* 446 */
    {"NE_ZERO_DIAG_ELEM", "NE_ZERO_DIAG_ELEM:\n  Error: Zero diagonal element."}, /* 447 */
    {"NE_RESID_LARG", "NE_RESID_LARG:\n  Error: Residual larg."}, /* 448 */
    {"NE_SVD_RANK_NE_IP", "NE_SVD_RANK_NE_IP:\n  Error: Singular value decomposition rank ne ip."}, /* 449 */
    {"NE_SVD_RANK_GT_IP", "NE_SVD_RANK_GT_IP:\n  Error: Singular value decomposition rank greater than ip."}, /* 450 */
    {"NE_ILLCOND", "NE_ILLCOND:\n  Error: Illcond."}, /* 451 */
    {"NE_IP_INCOMP_WITH_SX", "NE_IP_INCOMP_WITH_SX:\n  Error: Ip incompatible with sx."}, /* 452 */
    {"NE_MAT_NOT_FULL_RANK", "NE_MAT_NOT_FULL_RANK:\n  Error: Matrix not full rank."}, /* 453 */
    {"NE_STDES_ZERO", "NE_STDES_ZERO:\n  Error: Stdes zero."}, /* 454 */
    {"NE_RANK_EQ_IP", "NE_RANK_EQ_IP:\n  Error: Rank equal ip."}, /* 455 */
    {"NE_DIAG_ELEM_ZERO", "NE_DIAG_ELEM_ZERO:\n  Error: Diagonal element zero."}, /* 456 */
    {"NE_SW_LT_ONE", "NE_SW_LT_ONE:\n  On entry, the sum of weights is less than 1.0."}, /* 457 */
    {"NE_VAR_EQ_ZERO", "NE_VAR_EQ_ZERO:\n  At least one variable has zero variance. In this case v and std are as \n  calculated, but r will contain zero for any correlation involving a \n  variable with zero variance."}, /* 458 */
    {"NE_NEG_SX", "NE_NEG_SX:\n  On entry, at least one element of sx is negative."}, /* 459 */
    {"NE_POS_SX", "NE_POS_SX:\n  On entry, sx does not contain a positive element."}, /* 460 */
    {"NE_WT_LOW", "NE_WT_LOW:\n  Error: Weight low."}, /* 461 */
    {"NE_SW_LOW", "NE_SW_LOW:\n  Error: Sum of weights low."}, /* 462 */
    {"NW_RSS_EQ_ZERO", "NW_RSS_EQ_ZERO:\n  Warning: Rss equal zero."}, /* 463 */
    {"NW_RMS_EQ_ZERO", "NW_RMS_EQ_ZERO:\n  Warning: Rms equal zero."}, /* 464 */
    {"NE_SOBS_LOW", "NE_SOBS_LOW:\n  Too few observations have been selected.\n  On entry, sobs must contain at least 2 positive elements."}, /* 465 */
    {"NE_SVAR_LOW", "NE_SVAR_LOW:\n  No variables have been selected.\n  On entry, svar must contain at least 1 positive element."}, /* 466 */
    {"NE_X_OR_Y_IDEN", "NE_X_OR_Y_IDEN:\n  Error: X or y iden."}, /* 467 */
    {"NE_X_IDEN", "NE_X_IDEN:\n  Error: X iden."}, /* 468 */
    {"NE_PREC_NOT_INIT", "NE_PREC_NOT_INIT:\n  Error: Precision not initialised."}, /* 469 */
    {"NE_STRUCT_NOT_DEFINED", "NE_STRUCT_NOT_DEFINED:\n  Error: Structure not defined."}, /* 470 */
    {"NE_EX_POWER_EQ_ZERO", "NE_EX_POWER_EQ_ZERO:\n  Error: Ex power equal zero."}, /* 471 */
    {"NE_IP_INCOMP_SX", "NE_IP_INCOMP_SX:\n  Error: Ip incompatible sx."}, /* 472 */
    {"NE_IP_GT_OBSERV", "NE_IP_GT_OBSERV:\n  Error: Ip greater than observations."}, /* 473 */
    {"NE_VALUE_AT_BOUNDARY_A", "NE_VALUE_AT_BOUNDARY_A:\n  Error: Value at boundary a."}, /* 474 */
    {"NE_VALUE_AT_BOUNDARY_B", "NE_VALUE_AT_BOUNDARY_B:\n  Error: Value at boundary b."}, /* 475 */
    {"NE_VALUE_AT_BOUNDARY_C", "NE_VALUE_AT_BOUNDARY_C:\n  Error: Value at boundary c."}, /* 476 */
    {"NE_VALUE_AT_BOUNDARY_D", "NE_VALUE_AT_BOUNDARY_D:\n  Error: Value at boundary d."}, /* 477 */
    {"NE_LSQ_ITER_NOT_CONV", "NE_LSQ_ITER_NOT_CONV:\n  Error: Least squares iteration not convergence."}, /* 478 */
    {"NE_RANK_CHANGED", "NE_RANK_CHANGED:\n  Error: Rank changed."}, /* 479 */
    {"NE_ZERO_DOF_ERROR", "NE_ZERO_DOF_ERROR:\n  Error: Zero degrees of freedom error."}, /* 480 */
    {"NE_BAD_NY_SET", "NE_BAD_NY_SET:\n  On entry, ny = %ld and there are not exactly ny values of isz < 0.\n  Number of values of isz < 0 = %ld."}, /* 481 */
    {"NE_BAD_NX_SET", "NE_BAD_NX_SET:\n  On entry, nx = %ld and there are not exactly nx values of isz < 0."}, /* 482 */
    {"NE_VARCOV_MAT_SINGULAR", "NE_VARCOV_MAT_SINGULAR:\n  Error: Varcov matrix singular."}, /* 483 */
    {"NE_SQRT_VARCOV_SINGULAR", "NE_SQRT_VARCOV_SINGULAR:\n  Error: Sqrt varcov singular."}, /* 484 */
    {"NE_DIAG_ELEM_INVALID", "NE_DIAG_ELEM_INVALID:\n  Error: Diagonal element invalid."}, /* 485 */
    {"NE_DIAG_EQ_ZERO", "NE_DIAG_EQ_ZERO:\n  Error: Diagonal equal zero."}, /* 486 */
    {"NE_ELEM_GT_ONE", "NE_ELEM_GT_ONE:\n  Error: Element greater than one."}, /* 487 */
    {"NE_INVALID_HUBER_FUN", "NE_INVALID_HUBER_FUN:\n  Error: Invalid huber function."}, /* 488 */
    {"NE_INVALID_DCHI_FUN", "NE_INVALID_DCHI_FUN:\n  Error: Invalid dchi function."}, /* 489 */
    {"NE_INVALID_MALLOWS_REG_C", "NE_INVALID_MALLOWS_REG_C:\n  Error: Invalid mallows reg c."}, /* 490 */
    {"NE_INVALID_SCHWEPPE_REG_C", "NE_INVALID_SCHWEPPE_REG_C:\n  Error: Invalid schweppe reg c."}, /* 491 */
    {"NE_BAD_HAMPEL_PSI_FUN", "NE_BAD_HAMPEL_PSI_FUN:\n  Error: Bad hampel psi function."}, /* 492 */
    {"NE_WT_ITER_EXCEEDED", "NE_WT_ITER_EXCEEDED:\n  Error: Weight iteration exceeded."}, /* 493 */
    {"NE_BETA1_ITER_EXCEEDED", "NE_BETA1_ITER_EXCEEDED:\n  Error: Beta1 iteration exceeded."}, /* 494 */
    {"NE_THETA_ITER_EXCEEDED", "NE_THETA_ITER_EXCEEDED:\n  Error: Theta iteration exceeded."}, /* 495 */
    {"NE_LSQ_FAIL_CONV", "NE_LSQ_FAIL_CONV:\n  Error: Least squares fail convergence."}, /* 496 */
    {"NE_WT_LSQ_NOT_FULL_RANK", "NE_WT_LSQ_NOT_FULL_RANK:\n  Error: Weight least squares not full rank."}, /* 497 */
    {"NE_REG_MAT_SINGULAR", "NE_REG_MAT_SINGULAR:\n  Error: Reg matrix singular."}, /* 498 */
    {"NE_COV_MAT_FACTOR_ZERO", "NE_COV_MAT_FACTOR_ZERO:\n  Error: Cov matrix factor zero."}, /* 499 */
    {"NE_VAR_THETA_LEQ_ZERO", "NE_VAR_THETA_LEQ_ZERO:\n  Error: Variable theta leq zero."}, /* 500 */
    {"NE_ERR_DOF_LEQ_ZERO", "NE_ERR_DOF_LEQ_ZERO:\n  Error: Err degrees of freedom leq zero."}, /* 501 */
    {"NE_ESTIM_SIGMA_ZERO", "NE_ESTIM_SIGMA_ZERO:\n  Error: Estim sigma zero."}, /* 502 */
    {"NE_OBS_VAR_CONST", "NE_OBS_VAR_CONST:\n  Error: Observations variable const."}, /* 503 */
    {"NE_C_ITER_NOT_CONV", "NE_C_ITER_NOT_CONV:\n  Error: C iteration not convergence."}, /* 504 */
    {"NE_C_ITER_UNSTABLE", "NE_C_ITER_UNSTABLE:\n  Error: C iteration unstable."}, /* 505 */
    {"NE_CPSI_NOT_SET", "NE_CPSI_NOT_SET:\n  Error: Cpsi not set."}, /* 506 */
    {"NE_CUCV_NOT_SET", "NE_CUCV_NOT_SET:\n  Error: Cucv not set."}, /* 507 */
    {"NE_HPSI_NOT_SET", "NE_HPSI_NOT_SET:\n  Error: Hpsi not set."}, /* 508 */
    {"NE_DCHI_NOT_SET", "NE_DCHI_NOT_SET:\n  Error: Dchi not set."}, /* 509 */
    {"NE_SUM_ZERO", "NE_SUM_ZERO:\n  Error: Sum zero."}, /* 510 */
    {"NE_UCV", "NE_UCV:\n  Error: Ucv."}, /* 511 */
    {"NE_CONST_COL", "NE_CONST_COL:\n  Error: Const col."}, /* 512 */
    {"NE_COR_MAT_RANK", "NE_COR_MAT_RANK:\n  On entry, either the variance-covariance matrix or the correlation\n  matrix is not of full rank. Try removing some of the x variables by\n  setting the appropriate elements of isz to zero."}, /* 513 */
    {"NE_COR_MAT_POSDEF", "NE_COR_MAT_POSDEF:\n  Either a diagonal element of the partial variance-covariance matrix is zero\n  and/or a computed partial correlation coefficient is greater than one. Both\n  indicate that the matrix input in r was not positive-definite."}, /* 514 */
    {"NE_NEG_WEIGHT_ELEMENT", "NE_NEG_WEIGHT_ELEMENT:\n  Error: Negative weight element."}, /* 515 */
    {"NE_VAR_INCL_INDICATED", "NE_VAR_INCL_INDICATED:\n  Error: Variable incl indicated."}, /* 516 */
    {"NE_VAR_INCL_COND", "NE_VAR_INCL_COND:\n  Error: Variable incl cond."}, /* 517 */
    {"NE_OBSERV_LT_VAR", "NE_OBSERV_LT_VAR:\n  Error: Observations less than variable."}, /* 518 */
    {"NE_VAR_INCL_STANDARD", "NE_VAR_INCL_STANDARD:\n  Error: Variable incl standard."}, /* 519 */
    {"NE_ZERO_EIGVALS", "NE_ZERO_EIGVALS:\n  Error: Zero eigenvalues."}, /* 520 */
    {"NE_CANON_CORR_1", "NE_CANON_CORR_1:\n  Error: Canon correlation 1."}, /* 521 */
    {"NE_GROUPS", "NE_GROUPS:\n  Error: Groups."}, /* 522 */
    {"NE_RANK_ZERO", "NE_RANK_ZERO:\n  Error: Rank zero."}, /* 523 */
    {"NE_MAT_RANK_ZERO", "NE_MAT_RANK_ZERO:\n  Error: Matrix rank zero."}, /* 524 */
    {"NE_WT_ARGS", "NE_WT_ARGS:\n  Error: Weight arguments."}, /* 525 */
    {"NE_ACC_ITER", "NE_ACC_ITER:\n  Error: Accuracy iteration."}, /* 526 */
    {"NE_NORM_ZERO_PTS", "NE_NORM_ZERO_PTS:\n  Error: Norm zero pts."}, /* 527 */
    {"NE_LSQ_SCAL_ZERO_PTS", "NE_LSQ_SCAL_ZERO_PTS:\n  Error: Least squares scal zero pts."}, /* 528 */
    {"NE_MAT_RANK", "NE_MAT_RANK:\n  Error: Matrix rank."}, /* 529 */
    {"NE_GROUP_OBSERV", "NE_GROUP_OBSERV:\n  Error: Group observations."}, /* 530 */
    {"NE_GROUP_VAR", "NE_GROUP_VAR:\n  Error: Group variable."}, /* 531 */
    {"NE_DIAG_0_COND", "NE_DIAG_0_COND:\n  Error: Diagonal 0 cond."}, /* 532 */
    {"NE_DIAG_0_J_COND", "NE_DIAG_0_J_COND:\n  Error: Diagonal 0 j cond."}, /* 533 */
    {"NE_VAR_RANK", "NE_VAR_RANK:\n  Error: Variable rank."}, /* 534 */
    {"NE_GROUP_VAR_RANK", "NE_GROUP_VAR_RANK:\n  Error: Group variable rank."}, /* 535 */
    {"NE_GROUP_SUM", "NE_GROUP_SUM:\n  Error: Group sum."}, /* 536 */
    {"NE_PRIOR_SUM", "NE_PRIOR_SUM:\n  Error: Prior sum."}, /* 537 */
    {"NE_IDEN_ELEM_COND", "NE_IDEN_ELEM_COND:\n  Error: Iden element cond."}, /* 538 */
    {"NE_DENDROGRAM", "NE_DENDROGRAM:\n  Error: Dendrogram."}, /* 539 */
    {"NE_WT_ZERO", "NE_WT_ZERO:\n  Error: Weight zero."}, /* 540 */
    {"NE_CLUSTER_EMPTY", "NE_CLUSTER_EMPTY:\n  Error: Cluster empty."}, /* 541 */
    {"NE_DENDROGRAM_ARRAY", "NE_DENDROGRAM_ARRAY:\n  Error: Dendrogram array."}, /* 542 */
    {"NE_CLUSTER", "NE_CLUSTER:\n  Error: Cluster."}, /* 543 */
    {"NE_NONZERO_EIGVALS", "NE_NONZERO_EIGVALS:\n  Error: Nonzero eigenvalues."}, /* 544 */
    {"NE_EIGVAL", "NE_EIGVAL:\n  Error: Eigenvalue."}, /* 545 */
    {"NE_NEG_OR_ZERO_ARRAY", "NE_NEG_OR_ZERO_ARRAY:\n  Error: Negative or zero array."}, /* 546 */
    {"NE_NEG_ELEMENT", "NE_NEG_ELEMENT:\n  Error: Negative element."}, /* 547 */
    {"NE_IT_ARRAY", "NE_IT_ARRAY:\n  Error: It array."}, /* 548 */
    {"NE_ARRAY_CONSTANT", "NE_ARRAY_CONSTANT:\n  Error: Array constant."}, /* 549 */
    {"NE_G04BB_STDERR", "NE_G04BB_STDERR:\n  Error: G04bb stderr."}, /* 550 */
    {"NE_G04BB_CONV", "NE_G04BB_CONV:\n  Error: G04bb convergence."}, /* 551 */
    {"NE_G04BB_DESIGN", "NE_G04BB_DESIGN:\n  Error: G04bb design."}, /* 552 */
    {"NE_G04BB_TREAT", "NE_G04BB_TREAT:\n  Error: G04bb treat."}, /* 553 */
    {"NE_G04BB_RES_DF", "NE_G04BB_RES_DF:\n  Error: G04bb result df."}, /* 554 */
    {"NE_TOO_SMALL", "NE_TOO_SMALL:\n  Error: Too small."}, /* 555 */
    {"NE_PLOT_TREAT", "NE_PLOT_TREAT:\n  Error: Plot treat."}, /* 556 */
    {"NE_G04CA_RES_DF", "NE_G04CA_RES_DF:\n  Error: G04ca result df."}, /* 557 */
    {"NE_G04BC_ST_ERR", "NE_G04BC_ST_ERR:\n  Error: G04bc st err."}, /* 558 */
    {"NE_G04BC_REPS", "NE_G04BC_REPS:\n  Error: G04bc reps."}, /* 559 */
    {"NE_G04BC_RESD", "NE_G04BC_RESD:\n  Error: G04bc resd."}, /* 560 */
    {"NE_G04BC_DISCON", "NE_G04BC_DISCON:\n  Error: G04bc discon."}, /* 561 */
    {"NE_G04EA_LEVELS", "NE_G04EA_LEVELS:\n  Error: G04ea levels."}, /* 562 */
    {"NE_G04EA_ORTHO_POLY", "NE_G04EA_ORTHO_POLY:\n  Error: G04ea ortho poly."}, /* 563 */
    {"NE_STUDENTIZED_STAT", "NE_STUDENTIZED_STAT:\n  Error: Studentized stat."}, /* 564 */
    {"NE_STATE_CORRUPT", "NE_STATE_CORRUPT:\n  istate or xstate has been corrupted since the previous call to \n  kiv_save_random_state (g05cfc)."}, /* 565 */
    {"NE_REAL_ARG_NON_INTEGRAL", "NE_REAL_ARG_NON_INTEGRAL:\n  Error: Real argument non integral."}, /* 566 */
    {"NE_SYSTEM_TIME", "NE_SYSTEM_TIME:\n  Call to system function to obtain time has failed."}, /* 567 */
    {"NE_NOT_POS_SEM_DEF", "NE_NOT_POS_SEM_DEF:\n  Error: Not positive sem definite."}, /* 568 */
    {"NE_START_P_Q", "NE_START_P_Q:\n  Error: Start p q."}, /* 569 */
    {"NE_REF_VEC", "NE_REF_VEC:\n  Error: Ref vec."}, /* 570 */
    {"NE_PROB_NOT_ONE", "NE_PROB_NOT_ONE:\n  Error: Probability not one."}, /* 571 */
    {"NE_ALL_PROB_ZERO", "NE_ALL_PROB_ZERO:\n  Error: All probability zero."}, /* 572 */
    {"NE_NEG_PROB", "NE_NEG_PROB:\n  Error: Negative probability."}, /* 573 */
    {"NE_STATIONARITY", "NE_STATIONARITY:\n  Error: Stationarity."}, /* 574 */
    {"NE_WINS_RES_ZERO", "NE_WINS_RES_ZERO:\n  Error: Wins result zero."}, /* 575 */
    {"NE_ACC", "NE_ACC:\n  Error: Accuracy."}, /* 576 */
    {"NE_POS_DEF", "NE_POS_DEF:\n  Error: Positive definite."}, /* 577 */
    {"NE_ROUND_OFF", "NE_ROUND_OFF:\n  Error: Round off."}, /* 578 */
    {"NE_G08AA_NON_TIED", "NE_G08AA_NON_TIED:\n  Error: G08aa non tied."}, /* 579 */
    {"NE_G08AG_SAMP_IDEN", "NE_G08AG_SAMP_IDEN:\n  Error: G08ag samp iden."}, /* 580 */
    {"NE_G08AH_SAMP_IDEN", "NE_G08AH_SAMP_IDEN:\n  Error: G08ah samp iden."}, /* 581 */
    {"NE_G08CB_PARAM", "NE_G08CB_PARAM:\n  Error: G08cb parameter."}, /* 582 */
    {"NE_G08CB_DATA", "NE_G08CB_DATA:\n  Error: G08cb data."}, /* 583 */
    {"NE_G08CB_SAMPLE", "NE_G08CB_SAMPLE:\n  Error: G08cb sample."}, /* 584 */
    {"NE_G08CB_VARIANCE", "NE_G08CB_VARIANCE:\n  Error: G08cb variance."}, /* 585 */
    {"NE_G08CB_INCOMP_GAMMA", "NE_G08CB_INCOMP_GAMMA:\n  Error: G08cb incompatible gamma."}, /* 586 */
    {"NE_G08CD_CONV", "NE_G08CD_CONV:\n  Error: G08cd convergence."}, /* 587 */
    {"NE_G08CG_FREQ", "NE_G08CG_FREQ:\n  Error: G08cg freq."}, /* 588 */
    {"NE_G08CG_CLASS_VAL", "NE_G08CG_CLASS_VAL:\n  Error: G08cg class val."}, /* 589 */
    {"NE_G08CG_CONV", "NE_G08CG_CONV:\n  Error: G08cg convergence."}, /* 590 */
    {"NE_G08EA_TIE", "NE_G08EA_TIE:\n  Error: G08ea tie."}, /* 591 */
    {"NE_G08EA_RUNS_LENGTH", "NE_G08EA_RUNS_LENGTH:\n  Error: G08ea runs length."}, /* 592 */
    {"NE_G08EA_COVAR", "NE_G08EA_COVAR:\n  Error: G08ea covar."}, /* 593 */
    {"NE_G08EA_RUNS", "NE_G08EA_RUNS:\n  Error: G08ea runs."}, /* 594 */
    {"NE_G08EB_PAIRS", "NE_G08EB_PAIRS:\n  Error: G08eb pairs."}, /* 595 */
    {"NE_G08EB_CELL", "NE_G08EB_CELL:\n  Error: G08eb cell."}, /* 596 */
    {"NE_G08EC_CELL", "NE_G08EC_CELL:\n  Error: G08ec cell."}, /* 597 */
    {"NE_G08EC_TRIPLETS", "NE_G08EC_TRIPLETS:\n  Error: G08ec triplets."}, /* 598 */
    {"NE_G08ED_GAPS_ZERO", "NE_G08ED_GAPS_ZERO:\n  Error: G08ed gaps zero."}, /* 599 */
    {"NE_G08ED_FREQ_ZERO", "NE_G08ED_FREQ_ZERO:\n  Error: G08ed freq zero."}, /* 600 */
    {"NE_G08ED_GAPS", "NE_G08ED_GAPS:\n  Error: G08ed gaps."}, /* 601 */
    {"NE_G08ED_FREQ_LT_ONE", "NE_G08ED_FREQ_LT_ONE:\n  Error: G08ed freq less than one."}, /* 602 */
    {"NE_MANN_WHITNEY_STAT", "NE_MANN_WHITNEY_STAT:\n  Error: Mann whitney stat."}, /* 603 */
    {"NE_SEQUENCE_SHORT", "NE_SEQUENCE_SHORT:\n  Error: Sequence short."}, /* 604 */
    {"NE_G10AC_DF_RHO", "NE_G10AC_DF_RHO:\n  Error: G10ac df rho."}, /* 605 */
    {"NE_G10AC_DF_TOL", "NE_G10AC_DF_TOL:\n  Error: G10ac df tolerance."}, /* 606 */
    {"NE_G10AC_ACC", "NE_G10AC_ACC:\n  Error: G10ac accuracy."}, /* 607 */
    {"NE_G10AC_CG_RHO", "NE_G10AC_CG_RHO:\n  Error: G10ac cg rho."}, /* 608 */
    {"NE_G10BA_INIT", "NE_G10BA_INIT:\n  Error: G10ba initialised."}, /* 609 */
    {"NE_G10BA_INTERVAL", "NE_G10BA_INTERVAL:\n  Error: G10ba interval."}, /* 610 */
    {"NE_2D_INT_ARR_ELEM", "NE_2D_INT_ARR_ELEM:\n  Error: 2d integer array element."}, /* 611 */
    {"NE_2D_INT_ARR_ELEMS", "NE_2D_INT_ARR_ELEMS:\n  Error: 2d integer array elems."}, /* 612 */
    {"NE_TABLE_DEGENERATE", "NE_TABLE_DEGENERATE:\n  Error: Table degenerate."}, /* 613 */
    {"NE_LOW_EXPECTED_FREQ", "NE_LOW_EXPECTED_FREQ:\n  Error: Low expected freq."}, /* 614 */
    {"NE_MAXT", "NE_MAXT:\n  Error: Maxt."}, /* 615 */
    {"NE_VAR_DIV", "NE_VAR_DIV:\n  Error: Variable div."}, /* 616 */
    {"NE_G11BA_CHANGED", "NE_G11BA_CHANGED:\n  Error: G11ba changed."}, /* 617 */
    {"NE_CELL_EMPTY", "NE_CELL_EMPTY:\n  Error: Cell empty."}, /* 618 */
    {"NE_INVALID_CENSOR_CODE", "NE_INVALID_CENSOR_CODE:\n  Error: Invalid censor code."}, /* 619 */
    {"NE_INVALID_FREQ", "NE_INVALID_FREQ:\n  Error: Invalid freq."}, /* 620 */
    {"NE_CHAR_ARG_INVALID", "NE_CHAR_ARG_INVALID:\n  Error: Char argument invalid."}, /* 621 */
    {"NE_G12BA_SZ_IP", "NE_G12BA_SZ_IP:\n  Error: G12ba sz ip."}, /* 622 */
    {"NE_G12BA_SZ_ISI", "NE_G12BA_SZ_ISI:\n  Error: G12ba sz isi."}, /* 623 */
    {"NE_G12BA_NDMAX", "NE_G12BA_NDMAX:\n  Error: G12ba ndmax."}, /* 624 */
    {"NE_G12BA_MAT_SING", "NE_G12BA_MAT_SING:\n  Error: G12ba matrix sing."}, /* 625 */
    {"NE_G12BA_OVERFLOW", "NE_G12BA_OVERFLOW:\n  Error: G12ba overflow."}, /* 626 */
    {"NE_G12BA_CONV", "NE_G12BA_CONV:\n  Error: G12ba convergence."}, /* 627 */
    {"NE_G12BA_DEV", "NE_G12BA_DEV:\n  Error: G12ba dev."}, /* 628 */
    {"NE_TIME_SERIES_IDEN", "NE_TIME_SERIES_IDEN:\n  On entry, all values of %s are practically identical,\n  giving zero variance. In this case r and stat are undefined on exit."}, /* 629 */
    {"NE_INVALID_AUTOCO_COEF", "NE_INVALID_AUTOCO_COEF:\n  On entry, the autocorrelation coefficient of lag 1 has an absolute\n  value greater than or equal to 1.0; no recursions could be performed."}, /* 630 */
    {"NE_CORR_NOT_POS_DEF", "NE_CORR_NOT_POS_DEF:\n  Recursion has been prematurely terminated; the supplied autocorrelation\n  coefficients do not form a positive-definite sequence."}, /* 631 */
    {"NE_INVALID_NSER", "NE_INVALID_NSER:\n  Error: Invalid nser."}, /* 632 */
    {"NE_NPARA_MR_MT_INCONSIST", "NE_NPARA_MR_MT_INCONSIST:\n  Error: Npara mr mt inconsist."}, /* 633 */
    {"NE_DELTA_TEST_FAILED", "NE_DELTA_TEST_FAILED:\n  Error: Delta test failed."}, /* 634 */
    {"NE_SOLUTION_FAIL_CONV", "NE_SOLUTION_FAIL_CONV:\n  Error: Solution fail convergence."}, /* 635 */
    {"NE_MAT_NOT_POS_DEF", "NE_MAT_NOT_POS_DEF:\n  Error: Matrix not positive definite."}, /* 636 */
    {"NE_ARIMA_TEST_FAILED", "NE_ARIMA_TEST_FAILED:\n  Error: Arima test failed."}, /* 637 */
    {"NE_ITER_FAIL_NIT", "NE_ITER_FAIL_NIT:\n  Error: Iteration fail nit."}, /* 638 */
    {"NE_G13_OPTIONS_NOT_INIT", "NE_G13_OPTIONS_NOT_INIT:\n  Error: G13 options not initialised."}, /* 639 */
    {"NE_G13_ORDERS_NOT_INIT", "NE_G13_ORDERS_NOT_INIT:\n  Error: G13 orders not initialised."}, /* 640 */
    {"NE_NSER_INCONSIST", "NE_NSER_INCONSIST:\n  Error: Nser inconsist."}, /* 641 */
    {"NE_DIFORDER_LEN_INCONSIST", "NE_DIFORDER_LEN_INCONSIST:\n  Error: Diforder len inconsist."}, /* 642 */
    {"NE_SPECTRAL_ESTIM_NEG", "NE_SPECTRAL_ESTIM_NEG:\n  Error: Spectral estim negative."}, /* 643 */
    {"NE_CONFID_LIMIT_FACT", "NE_CONFID_LIMIT_FACT:\n  Error: Confid limit factorisation."}, /* 644 */
    {"NE_BIVAR_SPECTRAL_ESTIM_ZERO", "NE_BIVAR_SPECTRAL_ESTIM_ZERO:\n  Error: Bivar spectral estim zero."}, /* 645 */
    {"NE_UNIVAR_SPECTRAL_ESTIM_ZERO", "NE_UNIVAR_SPECTRAL_ESTIM_ZERO:\n  Error: Univar spectral estim zero."}, /* 646 */
    {"NE_UNIVAR_SPECTRAL_ESTIM_NEG", "NE_UNIVAR_SPECTRAL_ESTIM_NEG:\n  Error: Univar spectral estim negative."}, /* 647 */
    {"NE_SQUARED_FREQ_GT_ONE", "NE_SQUARED_FREQ_GT_ONE:\n  Error: Squared freq greater than one."}, /* 648 */
    {"NE_ARIMA_INPUT", "NE_ARIMA_INPUT:\n  Error: Arima input."}, /* 649 */
    {"NE_INPUT_NARMA", "NE_INPUT_NARMA:\n  Error: Input narma."}, /* 650 */
    {"NE_G13AS_AR", "NE_G13AS_AR:\n  Error: G13as ar."}, /* 651 */
    {"NE_G13AS_ZERO_VAR", "NE_G13AS_ZERO_VAR:\n  Error: G13as zero variable."}, /* 652 */
    {"NE_G13AS_ITER", "NE_G13AS_ITER:\n  Error: G13as iteration."}, /* 653 */
    {"NE_G13AS_FACT", "NE_G13AS_FACT:\n  Error: G13as factorisation."}, /* 654 */
    {"NE_G13AS_DIAG", "NE_G13AS_DIAG:\n  Error: G13as diagonal."}, /* 655 */
    {"NE_REQ_AVAIL", "NE_REQ_AVAIL:\n  Error: Required avail."}, /* 656 */
    {"NE_MPS_USER_MEM", "NE_MPS_USER_MEM:\n  Error: MPS file user mem."}, /* 657 */
    {"NE_MPS_ILLEGAL_DATA_LINE", "NE_MPS_ILLEGAL_DATA_LINE:\n  Error: MPS file illegal data line."}, /* 658 */
    {"NE_MPS_SPLIT_COL", "NE_MPS_SPLIT_COL:\n  Error: MPS file split col."}, /* 659 */
    {"NE_MPS_REPEAT_ROW", "NE_MPS_REPEAT_ROW:\n  Error: MPS file repeat row."}, /* 660 */
    {"NE_MPS_ILLEGAL_NAME", "NE_MPS_ILLEGAL_NAME:\n  Error: MPS file illegal name."}, /* 661 */
    {"NE_MPS_ILLEGAL_SETNAME", "NE_MPS_ILLEGAL_SETNAME:\n  Error: MPS file illegal setname."}, /* 662 */
    {"NE_MPS_ILLEGAL_NUMBER", "NE_MPS_ILLEGAL_NUMBER:\n  Error: MPS file illegal number."}, /* 663 */
    {"NE_MPS_INVALID_INF_BOUND", "NE_MPS_INVALID_INF_BOUND:\n  Error: MPS file invalid inf bound."}, /* 664 */
    {"NE_MPS_INVALID_BND_TYPE", "NE_MPS_INVALID_BND_TYPE:\n  Error: MPS file invalid bnd type."}, /* 665 */
    {"NE_MPS_INVALID_ROW_TYPE", "NE_MPS_INVALID_ROW_TYPE:\n  Error: MPS file invalid row type."}, /* 666 */
    {"NE_MPS_INVALID_INTORG_INTEND", "NE_MPS_INVALID_INTORG_INTEND:\n  Error: MPS file invalid intorg intend."}, /* 667 */
    {"NE_MPS_INVALID_RANGE", "NE_MPS_INVALID_RANGE:\n  Error: MPS file invalid range."}, /* 668 */
    {"NE_MPS_INVALID_BND_VAL", "NE_MPS_INVALID_BND_VAL:\n  Error: MPS file invalid bnd val."}, /* 669 */
    {"NE_MPS_NO_NEWLINE", "NE_MPS_NO_NEWLINE:\n  Error: MPS file no newline."}, /* 670 */
    {"NE_MPS_NO_COLS", "NE_MPS_NO_COLS:\n  Error: MPS file no cols."}, /* 671 */
    {"NE_MPS_NO_OBJ", "NE_MPS_NO_OBJ:\n  Error: MPS file no obj."}, /* 672 */
    {"NE_MPS_NO_ROWS", "NE_MPS_NO_ROWS:\n  Error: MPS file no rows."}, /* 673 */
    {"NE_MPS_TOO_BIG", "NE_MPS_TOO_BIG:\n  Error: MPS file too big."}, /* 674 */
    {"NE_MPS_UNKNOWN_COLNAME", "NE_MPS_UNKNOWN_COLNAME:\n  Error: MPS file unknown colname."}, /* 675 */
    {"NE_MPS_INVALID_INDICATOR", "NE_MPS_INVALID_INDICATOR:\n  Error: MPS file invalid indicator."}, /* 676 */
    {"NE_MPS_UNKNOWN_ROWNAME", "NE_MPS_UNKNOWN_ROWNAME:\n  Error: MPS file unknown rowname."}, /* 677 */
    {"NE_MPS_PROB_NOT_FOUND", "NE_MPS_PROB_NOT_FOUND:\n  Error: MPS file probability not found."}, /* 678 */
    {"NE_MPS_RHS_RANGE_BND_NOT_FOUND", "NE_MPS_RHS_RANGE_BND_NOT_FOUND:\n  Error: MPS file rhs range bnd not found."}, /* 679 */
    {"NE_MPS_OPT_NOT_INIT", "NE_MPS_OPT_NOT_INIT:\n  Error: MPS file optional not initialised."}, /* 680 */
    {"NE_MPS_ENDATA_NOT_FOUND", "NE_MPS_ENDATA_NOT_FOUND:\n  Error: MPS file endata not found."}, /* 681 */
    {"NE_ALLOC_AFTER_MPS", "NE_ALLOC_AFTER_MPS:\n  Error: Allocation after MPS file."}, /* 682 */
    {"NE_PRIORITY_NULL", "NE_PRIORITY_NULL:\n  Error: Priority null."}, /* 683 */
    {"NE_MIP_PROB_NULL", "NE_MIP_PROB_NULL:\n  Error: Integer programming probability null."}, /* 684 */
    {"NE_MIP_PROB_NOT_INIT", "NE_MIP_PROB_NOT_INIT:\n  Error: Integer programming probability not initialised."}, /* 685 */
    {"NE_MIP_ROOT_UNBOUNDED", "NE_MIP_ROOT_UNBOUNDED:\n  Error: Integer programming root unbounded."}, /* 686 */
    {"NE_MIP_ROOT_INFEAS", "NE_MIP_ROOT_INFEAS:\n  Error: Integer programming root infeas."}, /* 687 */
    {"NE_MIP_ROOT_MAX_ITER", "NE_MIP_ROOT_MAX_ITER:\n  Error: Integer programming root maximum iteration."}, /* 688 */
    {"NW_MIP_FIRST_INT_SOL", "NW_MIP_FIRST_INT_SOL:\n  Warning: Integer programming first integer solution."}, /* 689 */
    {"NW_MIP_NO_INT_SOL", "NW_MIP_NO_INT_SOL:\n  Warning: Integer programming no integer solution."}, /* 690 */
    {"NW_MIP_MAX_ITER_INT_SOL", "NW_MIP_MAX_ITER_INT_SOL:\n  Warning: Integer programming maximum iteration integer solution."}, /* 691 */
    {"NW_MIP_MAX_ITER_NO_INT_SOL", "NW_MIP_MAX_ITER_NO_INT_SOL:\n  Warning: Integer programming maximum iteration no integer solution."}, /* 692 */
    {"NW_MIP_MAX_NODES_INT_SOL", "NW_MIP_MAX_NODES_INT_SOL:\n  Warning: Integer programming maximum nodes integer solution."}, /* 693 */
    {"NW_MIP_MAX_NODES_NO_INT_SOL", "NW_MIP_MAX_NODES_NO_INT_SOL:\n  Warning: Integer programming maximum nodes no integer solution."}, /* 694 */
    {"NW_MIP_MAX_DEPTH_INT_SOL", "NW_MIP_MAX_DEPTH_INT_SOL:\n  Warning: Integer programming maximum depth integer solution."}, /* 695 */
    {"NW_MIP_MAX_DEPTH_NO_INT_SOL", "NW_MIP_MAX_DEPTH_NO_INT_SOL:\n  Warning: Integer programming maximum depth no integer solution."}, /* 696 */
    {"NE_MIP_ROOT_HESS_TOO_BIG", "NE_MIP_ROOT_HESS_TOO_BIG:\n  Error: Integer programming root Hessian too big."}, /* 697 */
    {"NE_MIP_HESS_TOO_BIG_INT_SOL", "NE_MIP_HESS_TOO_BIG_INT_SOL:\n  Error: Integer programming Hessian too big integer solution."}, /* 698 */
    {"NE_MIP_HESS_TOO_BIG_NO_INT_SOL", "NE_MIP_HESS_TOO_BIG_NO_INT_SOL:\n  Error: Integer programming Hessian too big no integer solution."}, /* 699 */
    {"NE_CH_LOOP", "NE_CH_LOOP:\n  Error: Cholesky loop."}, /* 700 */
    {"NE_BAD_RANK", "NE_BAD_RANK:\n  Error: Bad rank."}, /* 701 */
    {"NE_REZ_OVERFLOW", "NE_REZ_OVERFLOW:\n  Error: Real part of z overflow."}, /* 702 */
    {"NE_IMZ_OVERFLOW", "NE_IMZ_OVERFLOW:\n  Error: Imaginary part of z overflow."}, /* 703 */
    {"NE_Z_OVERFLOW", "NE_Z_OVERFLOW:\n  Error: Z overflow."}, /* 704 */
    {"NE_IMZ_HALF_PREC", "NE_IMZ_HALF_PREC:\n  Error: Imaginary part of z half precision."}, /* 705 */
    {"NE_IMZ_NO_PREC", "NE_IMZ_NO_PREC:\n  Error: Imaginary part of z no precision."}, /* 706 */
    {"NE_REAL_ARG_TOO_SMALL", "NE_REAL_ARG_TOO_SMALL:\n  On entry, %s = %g.\n  Constraint: %s."}, /* 707 */
    {"NE_REAL_ARG_NEG_INT", "NE_REAL_ARG_NEG_INT:\n  On entry, %s = %g.\n  Constraint: %s must not be zero or a negative integer."}, /* 708 */
    {"NE_UNDERFLOW_LIKELY", "NE_UNDERFLOW_LIKELY:\n  On entry, %s = %g.\n  The result would underflow."}, /* 709 */
    {"NE_OVERFLOW_LIKELY", "NE_OVERFLOW_LIKELY:\n  On entry, %s = %g.\n  The result would overflow."}, /* 710 */
    {"NW_SOME_PRECISION_LOSS", "NW_SOME_PRECISION_LOSS:\n  Warning: Some precision loss."}, /* 711 */
    {"NE_TOTAL_PRECISION_LOSS", "NE_TOTAL_PRECISION_LOSS:\n  Error: Total precision loss."}, /* 712 */
    {"NE_TERMINATION_FAILURE", "NE_TERMINATION_FAILURE:\n  Error: Termination failure."}, /* 713 */
    {"NE_INFINITE", "NE_INFINITE:\n  Error: Infinite."}, /* 714 */
    {"NE_S21_CONV", "NE_S21_CONV:\n  Error: S21 convergence."}, /* 715 */
    {"NE_NO_LICENCE", "NE_NO_LICENCE:\n  Error: No licence."}, /* 716 */
    {"NE_INT_ARRAY", "NE_INT_ARRAY:\n  Error: Integer array."}, /* 717 */
    {"NE_VACUUM", "NE_VACUUM:\n  Error: Vacuum."}, /* 718 */
    {"NE_RESULT_NO_PRECISION", "NE_RESULT_NO_PRECISION:\n  Error: Result no precision."}, /* 719 */
    {"NE_RESULT_HALF_PRECISION", "NE_RESULT_HALF_PRECISION:\n  Error: Result half precision."}, /* 720 */
    {"NE_RESULT_REAL_OVERFLOW", "NE_RESULT_REAL_OVERFLOW:\n  Error: Result real overflow."}, /* 721 */
    {"NE_RESULT_IMAGINARY_OVERFLOW", "NE_RESULT_IMAGINARY_OVERFLOW:\n  Error: Result imaginary overflow."}, /* 722 */
    {"NE_RESULT_OVERFLOW", "NE_RESULT_OVERFLOW:\n  Error: Result overflow."}, /* 723 */
    {"NE_INTERNAL_WORKSPACE", "NE_INTERNAL_WORKSPACE:\n  Error: Internal workspace."}, /* 724 */
    {"NE_TOO_CLOSE_INTEGER", "NE_TOO_CLOSE_INTEGER:\n  Error: Too close integer."}, /* 725 */
};
// clang-format on

}  // namespace kiv::rt
