/*
 * kiv.h - public interface of libkiv, a library of statistical and
 * special-function routines with a plain C interface.
 *
 * Compiles as C99 and as C++. Every routine reports through a KivError
 * record passed as its last argument (where it has one): pass NULL to have
 * errors printed and the process aborted, or a record to receive the code
 * and message (set print = 0 to keep errors quiet).
 */
#ifndef KIV_H
#define KIV_H

#include <stddef.h>

/* The library's version (the same as the shared library's and the CMake
   package's, which take it from here). */
#define KIV_VERSION_MAJOR 0
#define KIV_VERSION_MINOR 1
#define KIV_VERSION_PATCH 0

#if defined(_WIN32) || defined(__CYGWIN__)
#if defined(KIV_BUILDING_LIBRARY) && !defined(KIV_STATIC)
#define KIV_API __declspec(dllexport)
#elif defined(KIV_STATIC) || defined(KIV_BUILDING_LIBRARY)
#define KIV_API
#else
#define KIV_API
#endif
#else
#define KIV_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

typedef int kiv_int;

/* The error record. Owned by the caller; filled by every routine that
   takes one. */
typedef struct {
    int code;          /* code of the last outcome; 0 (NE_NOERROR) on success */
    int print;         /* non-zero: errors and warnings are printed to stderr */
    char message[512]; /* message text of the last outcome */
    void (*handler)(const char *message, int code, const char *routine);
    int errnum; /* failure number of an inner error-flag routine */
} KivError;

/* Error codes: the table of 726 codes, and three codes of their own. */
enum KivErrorCode {
    NE_NOERROR = 0,
    NE_CODE_NOT_SET = 1,
    NE_ERR_MSG_STRING = 2,
    NE_TOO_MANY = 3,
    NE_REAL_ARG_EQ = 4,
    NE_REAL_ARG_LT = 5,
    NE_REAL_ARG_LE = 6,
    NE_REAL_ARG_GT = 7,
    NE_REAL_ARG_GE = 8,
    NE_REAL_ARG_CONS = 9,
    NE_INT_ARG_EQ = 10,
    NE_INT_ARG_LT = 11,
    NE_INT_ARG_LE = 12,
    NE_INT_ARG_GT = 13,
    NE_INT_ARG_GE = 14,
    NE_INT_ARG_CONS = 15,
    NE_2_INT_ARG_EQ = 16,
    NE_2_INT_ARG_LT = 17,
    NE_2_INT_ARG_LE = 18,
    NE_2_INT_ARG_GT = 19,
    NE_2_INT_ARG_GE = 20,
    NE_2_INT_ARG_ZERO = 21,
    NE_2_REAL_ARG_EQ = 22,
    NE_2_REAL_ARG_LT = 23,
    NE_2_REAL_ARG_LE = 24,
    NE_2_REAL_ARG_GT = 25,
    NE_2_REAL_ARG_GE = 26,
    NE_2_REAL_ARG_TOO_CLOSE = 27,
    NE_2_INT_ARG_CONS = 28,
    NE_3_INT_ARG_CONS = 29,
    NE_4_INT_ARG_CONS = 30,
    NE_2_REAL_ARG_CONS = 31,
    NE_3_REAL_ARG_CONS = 32,
    NE_4_REAL_ARG_CONS = 33,
    NE_2_REAL_ENUM_ARG_CONS = 34,
    NE_3_REAL_ENUM_ARG_CONS = 35,
    NE_REAL_INT_ARG_CONS = 36,
    NE_REAL_ENUM_ARG_CONS = 37,
    NE_ENUM_ENUM_ARG_CONS = 38,
    NE_INVALID_INT_RANGE_1 = 39,
    NE_INVALID_INT_RANGE_2 = 40,
    NE_INVALID_REAL_RANGE_E = 41,
    NE_INVALID_REAL_RANGE_F = 42,
    NE_INVALID_REAL_RANGE_EE = 43,
    NE_INVALID_REAL_RANGE_EF = 44,
    NE_INVALID_REAL_RANGE_FF = 45,
    NE_INVALID_REAL_RANGE_FE = 46,
    NE_INVALID_REAL_RANGE_CONS = 47,
    NE_INT_RANGE_CONS = 48,
    NE_INT_RANGE_CONS_2 = 49,
    NE_REAL_RANGE_CONS = 50,
    NE_2_INT_REAL_ARG_CONS = 51,
    NE_2_REAL_INT_ARG_CONS = 52,
    NE_INT_ARRAY_1 = 53,
    NE_INT_ARRAY_2 = 54,
    NE_REAL_ARRAY_INPUT = 55,
    NE_INT_ARRAY_VAL_1_OR_2 = 56,
    NE_REAL_ARRAY_CONS = 57,
    NE_ARRAY_CONS = 58,
    NE_ARRAY_INPUT = 59,
    NE_2_REAL_ARRAYS_CONS = 60,
    NE_REAL_ARRAY_ELEM_CONS = 61,
    NE_NOT_INCREASING = 62,
    NE_NOT_STRICTLY_INCREASING = 63,
    NE_NOT_DECREASING = 64,
    NE_NOT_STRICTLY_DECREASING = 65,
    NE_NOT_NON_DECREASING = 66,
    NE_NO_NORMALISATION = 67,
    NE_USER_STOP = 68,
    NE_BOOL_NOT_SET = 69,
    NE_BAD_PARAM = 70,
    NE_F06_BAD_PARAM = 71,
    NE_ARG_INVALID = 72,
    NE_ALLOC_FAIL = 73,
    NE_INTERNAL_ERROR = 74,
    NE_MESG_NOT_INIT = 75,
    NE_NOT_READ_FILE = 76,
    NE_NOT_WRITE_FILE = 77,
    NE_NOT_APPEND_FILE = 78,
    NE_NOT_CLOSE_FILE = 79,
    NE_WRITE_ERROR = 80,
    NE_STRUCT_CORRUPT = 81,
    NE_NULL_ARRAY = 82,
    NE_NON_MONOTONIC = 83,
    NE_INT_OPT_ARG_LT = 84,
    NE_INT_OPT_ARG_GT = 85,
    NE_2_INT_OPT_ARG_CONS = 86,
    NE_2_REAL_EE_OPT_ARG_CONS = 87,
    NE_INCOMPAT_PARAM = 88,
    NE_TEST_FAILED = 89,
    NE_INT = 90,
    NE_INT_2 = 91,
    NE_INT_3 = 92,
    NE_INT_4 = 93,
    NE_INT_5 = 94,
    NE_INT_6 = 95,
    NE_ENUM_INT = 96,
    NE_ENUM_INT_2 = 97,
    NE_ENUM_INT_3 = 98,
    NE_ENUM_INT_4 = 99,
    NE_REAL = 100,
    NE_REAL_2 = 101,
    NE_REAL_3 = 102,
    NE_REAL_4 = 103,
    NE_REAL_5 = 104,
    NE_REAL_6 = 105,
    NE_ENUM_REAL_1 = 106,
    NE_ENUM_REAL_2 = 107,
    NE_ENUM_REAL_3 = 108,
    NE_ENUM_REAL_4 = 109,
    NE_CONSTRAINT = 110,
    NE_COMPLEX = 111,
    NE_INT_ARRAY_CONS = 112,
    NE_2_INT_ARRAY_CONS = 113,
    NE_2D_INT_ARRAY_CONS = 114,
    NE_2D_REAL_ARRAY_CONS = 115,
    NE_2D_1D_INT_ARRAYS_CONS = 116,
    NE_INT_ARG_ENUM_CONS = 117,
    NE_2_INT_ARG_ENUM_CONS = 118,
    NE_2_INTARR_INT = 119,
    NE_INTARR = 120,
    NE_INTARR_INT = 121,
    NE_INTARR_2_INT = 122,
    NE_INTARR_3_INT = 123,
    NE_REALARR = 124,
    NE_INCOMP_ARRAYS = 125,
    NE_REAL_MACH_PREC = 126,
    NE_REAL_INT = 127,
    NE_REALARR_REAL = 128,
    NW_INT = 129,
    NW_2_INT = 130,
    NW_REAL_REALARR = 131,
    NE_INTARR_REALARR = 132,
    NE_COMPLEX_ZERO = 133,
    NE_POLY_NOT_CONV = 134,
    NE_POLY_UNFLOW = 135,
    NE_POLY_OVFLOW = 136,
    NE_C02_OVERFLOW = 137,
    NE_C02_NOT_CONV = 138,
    NE_FUNC_END_VAL = 139,
    NE_PROBABLE_POLE = 140,
    NE_XTOL_TOO_SMALL = 141,
    NE_TOO_MANY_FUNC_EVAL = 142,
    NE_NO_IMPROVEMENT = 143,
    NE_FACTOR_GT = 144,
    NE_TOO_MANY_FACTORS = 145,
    NE_C06_FACTOR_GT = 146,
    NE_C06_TOO_MANY_FACTORS = 147,
    NE_C06_NOT_TRIG = 148,
    NE_C06_FACTORS = 149,
    NE_QUAD_MAX_SUBDIV = 150,
    NE_QUAD_BAD_SUBDIV = 151,
    NE_QUAD_BAD_SUBDIV_INTS = 152,
    NE_QUAD_ROUNDOFF_TOL = 153,
    NE_QUAD_ROUNDOFF_ABS_TOL = 154,
    NE_QUAD_ROUNDOFF_EXTRAPL = 155,
    NE_QUAD_NO_CONV = 156,
    NE_QUAD_BRKPTS_INVAL = 157,
    NE_QUAD_BAD_SUBDIV_INT = 158,
    NE_QUAD_MAX_INT = 159,
    NE_QUAD_EXTRAPL_INT = 160,
    NE_QUAD_MAX_SUBDIV_SPEC_INT = 161,
    NE_QUAD_ROUNDOFF_TOL_SPEC_INT = 162,
    NE_QUAD_NO_CONV_SPEC_INT = 163,
    NE_QUAD_DIVERGENCE_SPEC_INT = 164,
    NE_QUAD_BAD_SPEC_INT = 165,
    NE_QUAD_GAUSS_NPTS_RULE = 166,
    NE_QUAD_GAUSS_CONS = 167,
    NE_QUAD_GAUSS_LAG_HER_WTS = 168,
    NE_QUAD_MAX_INTEGRAND_EVAL = 169,
    NE_QUAD_MAX_INTEGRAND_CONS = 170,
    NE_QUAD_FIRST_TWO_PTS_EQL = 171,
    NE_XSOL_NOT_RESET = 172,
    NE_XSOL_SET_WRONG = 173,
    NE_XSOL_INCONSIST = 174,
    NE_TOL_TOO_SMALL = 175,
    NE_TOL_PROGRESS = 176,
    NE_NO_SIGN_CHANGE = 177,
    NE_STATE = 178,
    NE_NEQF_CHANGED = 179,
    NE_NEQG_CHANGED = 180,
    NE_VECTOL_CHANGED = 181,
    NE_REAL_LT_COND = 182,
    NE_NO_INTEGRATE = 183,
    NE_NO_STEPS = 184,
    NW_EXTRAPOLATION = 185,
    NE_NWANT_GT = 186,
    NE_NO_SETUP = 187,
    NE_SETUP_ERROR = 188,
    NE_T_SAME_TOUT = 189,
    NE_T_CHANGED = 190,
    NE_DIRECTION_CHANGE = 191,
    NE_TOUT_TCRIT = 192,
    NE_MAX_STEP = 193,
    NE_ODE_TOL = 194,
    NE_WEIGHT_ZERO = 195,
    NE_STIFF_PROBLEM = 196,
    NE_SINGULAR_POINT = 197,
    NE_NO_G_FUN = 198,
    NE_NEQF = 199,
    NE_NEQ = 200,
    NE_LF_B_VAL = 201,
    NE_RT_B_VAL = 202,
    NE_LFRT_B_VAL = 203,
    NE_LF_B_MESH = 204,
    NE_RT_B_MESH = 205,
    NE_CONV_MESH = 206,
    NE_CONV_MESH_INIT = 207,
    NE_CONV_ROUNDOFF = 208,
    NE_CONV_CONT = 209,
    NE_CONV_JACOBG = 210,
    NE_CONV_CONT_DEP = 211,
    NE_CONV_CONT_DELEPS = 212,
    NE_BOUND_COND_ROW = 213,
    NE_BOUND_COND_COL = 214,
    NE_BOUND_COND_MAT = 215,
    NE_BOUND_COND_LC = 216,
    NE_BOUND_COND_NLC = 217,
    NE_INVALID_FUN_JAC = 218,
    NE_INVALID_FUN_JAC_CONT = 219,
    NE_INVALID_FUN_JAC_NO_CONT = 220,
    NE_INVALID_FUN_NO_JAC_CONT = 221,
    NE_RK_INVALID_CALL = 222,
    NE_PREV_CALL = 223,
    NE_PREV_CALL_INI = 224,
    NE_RK_TGOT_EQ_TEND = 225,
    NE_RK_TGOT_RANGE_TEND = 226,
    NE_RK_TGOT_RANGE_TEND_CLOSE = 227,
    NE_RK_TWANT_CLOSE_TGOT = 228,
    NE_RK_PCC_METHOD = 229,
    NE_RK_PDC_TEND = 230,
    NE_RK_PDC_STEP = 231,
    NE_RK_PDC_POINTS = 232,
    NE_RK_PDC_GLOBAL_ERROR_T = 233,
    NE_RK_PDC_GLOBAL_ERROR_S = 234,
    NE_MISSING_CALL = 235,
    NE_RK_DIRECTION_POS = 236,
    NE_RK_DIRECTION_NEG = 237,
    NE_RK_STEP = 238,
    NE_ERRASS_REQ = 239,
    NE_RK_STIFF = 240,
    NE_RK_PX_METHOD = 241,
    NW_RK_TOO_MANY = 242,
    NE_RK_NOSTEP = 243,
    NE_MEMORY_FREED = 244,
    NE_NOT_MONOTONIC = 245,
    NW_EXTRAPOLATE = 246,
    NE_ABSCI_OUTSIDE_KNOT_INTVL = 247,
    NE_KNOTS_OUTSIDE_DATA_INTVL = 248,
    NE_WEIGHTS_NOT_POSITIVE = 249,
    NE_SW_COND_FAIL = 250,
    NW_INTERVAL_EXTRAPOLATE = 251,
    NE_DATA_ILL_CONDITIONED = 252,
    NE_KNOTS_DISTINCT_ABSCI_CONS = 253,
    NE_ALL_DATA_COLLINEAR = 254,
    NE_DATA_NOT_UNIQUE = 255,
    NE_NUM_PARAM_INVALID = 256,
    NE_RAD_PARAM_INVALID = 257,
    NW_SPARSE_DATA_FIT = 258,
    NE_TRIANG_INVALID = 259,
    NW_VALUE_EXTRAPOLATED = 260,
    NE_BAD_INTERPOLANT = 261,
    NE_KNOTS_CONS = 262,
    NE_SPLINE_COEFF_CONV = 263,
    NE_END_KNOTS_CONS = 264,
    NE_KNOTS_COORD_CONS = 265,
    NE_POINT_OUTSIDE_RECT = 266,
    NE_KNOTS_COINCIDE = 267,
    NE_PANEL_ORDER = 268,
    NE_ALL_ELEMENTS_EQUAL = 269,
    NE_NUM_KNOTS_2D_GT_RECT = 270,
    NE_NUM_KNOTS_2D_GT_SCAT = 271,
    NE_NUM_COEFF_GT = 272,
    NE_NUM_KNOTS_1D_GT = 273,
    NE_NO_ADDITIONAL_KNOTS = 274,
    NE_ENUMTYPE_WARM = 275,
    NE_NUM_KNOTS_2D_LT = 276,
    NE_SF_D_K_CONS = 277,
    NE_SPLINE_RANGE_INVALID = 278,
    NE_NON_ZERO_WEIGHTS = 279,
    NE_INVALID_XCAP = 280,
    NE_OPT_NOT_INIT = 281,
    NE_INVALID_OPTION = 282,
    NE_FIELD_UNKNOWN = 283,
    NE_INVALID_OPTION_NAME = 284,
    NE_INVALID_VALUE = 285,
    NE_NO_VALUE = 286,
    NE_UNBALANCED_COMMENT = 287,
    NW_SMALL_DERIV = 288,
    NE_DERIV_ERRORS = 289,
    NE_GRAD_TOO_SMALL = 290,
    NE_SVD_FAIL = 291,
    NW_NO_IMPROVEMENT = 292,
    NW_COND_MIN = 293,
    NW_TOO_MANY_ITER = 294,
    NW_STEP_BOUND_TOO_SMALL = 295,
    NE_MISSING_DERIV = 296,
    NE_INVALID_TEXT_RANGE = 297,
    NE_INVALID_ENUM_RANGE = 298,
    NE_NOT_FUN_NAME = 299,
    NE_CHOLESKY_OVERFLOW = 300,
    NW_LOCAL_SEARCH = 301,
    NE_BOUND = 302,
    NE_BOUND_LCON = 303,
    NE_BOUND_NLCON = 304,
    NE_BOUND_EQ = 305,
    NE_BOUND_EQ_LCON = 306,
    NE_BOUND_EQ_NLCON = 307,
    NE_FD_INT = 308,
    NE_HESD = 309,
    NE_CANCEL_ERR = 310,
    NE_INIT_MEM = 311,
    NE_NO_MEM = 312,
    NE_SINGULAR_VALUES = 313,
    NW_LIN_DEPEND = 314,
    NE_SVD_ZERO = 315,
    NE_C_OVERFLOW = 316,
    NW_DEAD_POINT = 317,
    NW_SOLN_NOT_UNIQUE = 318,
    NE_UNBOUNDED = 319,
    NW_NOT_FEASIBLE = 320,
    NW_LIN_NOT_FEASIBLE = 321,
    NW_NONLIN_NOT_FEASIBLE = 322,
    NE_HESS_TOO_BIG = 323,
    NW_OVERFLOW_WARN = 324,
    NE_STATE_VAL = 325,
    NE_STR_UNKNOWN = 326,
    NE_STOP_LT_START = 327,
    NE_CHECK_LT_ONE = 328,
    NE_WARM_START = 329,
    NE_CVEC_NULL = 330,
    NE_H_NULL = 331,
    NE_H_NULL_QP = 332,
    NW_NOT_CONVERGED = 333,
    NW_KT_CONDITIONS = 334,
    NE_INVALID_BEGIN = 335,
    NW_LAGRANGE_MULT_ZERO = 336,
    NE_CYCLING = 337,
    NE_OBJ_BOUND = 338,
    NE_DUPLICATE_ELEMENT = 339,
    NE_HESS_INDEF = 340,
    NE_BASIS_ILL_COND = 341,
    NE_OUT_OF_WORKSPACE = 342,
    NE_BASIS_SINGULAR = 343,
    NE_NULL_QPHX = 344,
    NE_NAME_TOO_LONG = 345,
    NE_STATE_VAL_ARG = 346,
    NE_NAMES_NOT_KIV_MEM = 347,
    NE_NULL_ARGUMENT = 348,
    NE_B_NULL = 349,
    NW_MAX_FUN = 350,
    NE_H_FORWARD_NULL = 351,
    NW_DERIV_INFO = 352,
    NE_INFEASIBLE = 353,
    NE_LIN_NOT_FEASIBLE = 354,
    NE_NONLIN_NOT_FEASIBLE = 355,
    NE_MAYBE_UNBOUNDED = 356,
    NE_TOO_MANY_ITER = 357,
    NE_TOO_MANY_MAJOR_ITER = 358,
    NE_TOO_MANY_MINOR_ITER = 359,
    NE_SUPERBASICS_LIMIT = 360,
    NE_OBJ_DERIV_ERRORS = 361,
    NE_CON_DERIV_ERRORS = 362,
    NE_NO_IMPROVE = 363,
    NE_CANNOT_CALCULATE = 364,
    NE_NOT_REQUIRED_ACC = 365,
    NE_SINGULAR = 366,
    NE_NOT_POS_DEF = 367,
    NE_NOT_POS_DEF_FACT = 368,
    NE_ZERO_DIAG = 369,
    NE_NOT_UNIT_DIAG = 370,
    NE_TOO_MANY_ITERATIONS = 371,
    NE_TDQ_LT_M = 372,
    NE_TDQ_LT_N = 373,
    NE_TDP_LT_N = 374,
    NE_QR_NOT_CONV = 375,
    NE_RANK_LT_N = 376,
    NE_RANK_LT_NOT_UNIQ = 377,
    NE_ITER_FAIL_CONV = 378,
    NE_DIAG_IMAG_NON_ZERO = 379,
    NE_SINGULAR_DET_ZERO = 380,
    NE_DET_OVERFLOW = 381,
    NE_DET_UNDERFLOW = 382,
    NE_ITERATIONS_QZ = 383,
    NE_MATRIX_NOT_ZERO = 384,
    NE_QR_FAIL_CONV = 385,
    NE_MAT_SINGULAR = 386,
    NE_QR_FAIL = 387,
    NE_REQD_EIGVAL = 388,
    NE_EIGVEC = 389,
    NE_FORMAT_LEN = 390,
    NE_INVALID_FORMAT = 391,
    NE_COL_WIDTH = 392,
    NE_EXCHANGE = 393,
    NE_REORDER = 394,
    NE_PERTURBED = 395,
    NE_SYMM_MATRIX = 396,
    NE_ZERO_DIAGONAL_ELEM = 397,
    NE_PRECOND_NOT_POS_DEF = 398,
    NE_COEFF_NOT_POS_DEF = 399,
    NE_NOT_REQ_ACC = 400,
    NE_ACC_LIMIT = 401,
    NE_SYMM_MATRIX_DUP = 402,
    NE_INVALID_ROW_PIVOT = 403,
    NE_LA_TOO_SMALL = 404,
    NE_INVALID_SCS = 405,
    NE_INVALID_SCS_PRECOND = 406,
    NE_NON_ZERO_DUP = 407,
    NE_ZERO_COEFF = 408,
    NE_INVALID_CS = 409,
    NE_INVALID_CS_PRECOND = 410,
    NE_INVALID_ROWCOL_PIVOT = 411,
    NE_NONSYMM_MATRIX = 412,
    NE_NONSYMM_MATRIX_DUP = 413,
    NE_NEG_WEIGHT = 414,
    NE_CASES_ZERO = 415,
    NE_CASES_ONE = 416,
    NE_FUN_INF = 417,
    NE_GAM_NOT_CONV = 418,
    NE_RES_NOT_ACC = 419,
    NE_ALG_NOT_CONV = 420,
    NE_SOL_CLOSE_TO_ZERO = 421,
    NE_SOL_NOT_CONV = 422,
    NE_ACC_IN_DOUBT = 423,
    NE_PROBAB_CLOSE_TO_TAIL = 424,
    NE_ARG_TOO_LARGE = 425,
    NE_VARIANCE_TOO_LARGE = 426,
    NE_SAMPLES_NOT_IN_ORDER = 427,
    NE_SAMPLES_ARE_ALL_EQUAL = 428,
    NE_NORMAL_SCORE_EST = 429,
    NE_SERIES = 430,
    NE_PROBABILITY = 431,
    NE_POISSON_WEIGHT = 432,
    NE_TERM_LARGE = 433,
    NE_CHI_PROB = 434,
    NE_CONV = 435,
    NE_PROB_F = 436,
    NE_PROB_F_INIT = 437,
    NE_PROB_LIMIT = 438,
    NE_PROB_B_INIT = 439,
    NE_BAD_SX_OR_IP = 440,
    NE_ZERO_DOF_RESID = 441,
    NE_SVD_NOT_CONV = 442,
    NE_MAT_NOT_UPD = 443,
    NE_RSS_NOT_UPD = 444,
    NE_DOF_LE_ZERO = 445,
    NE_NVAR_NOT_IND = 446,
    NE_ZERO_DIAG_ELEM = 447,
    NE_RESID_LARG = 448,
    NE_SVD_RANK_NE_IP = 449,
    NE_SVD_RANK_GT_IP = 450,
    NE_ILLCOND = 451,
    NE_IP_INCOMP_WITH_SX = 452,
    NE_MAT_NOT_FULL_RANK = 453,
    NE_STDES_ZERO = 454,
    NE_RANK_EQ_IP = 455,
    NE_DIAG_ELEM_ZERO = 456,
    NE_SW_LT_ONE = 457,
    NE_VAR_EQ_ZERO = 458,
    NE_NEG_SX = 459,
    NE_POS_SX = 460,
    NE_WT_LOW = 461,
    NE_SW_LOW = 462,
    NW_RSS_EQ_ZERO = 463,
    NW_RMS_EQ_ZERO = 464,
    NE_SOBS_LOW = 465,
    NE_SVAR_LOW = 466,
    NE_X_OR_Y_IDEN = 467,
    NE_X_IDEN = 468,
    NE_PREC_NOT_INIT = 469,
    NE_STRUCT_NOT_DEFINED = 470,
    NE_EX_POWER_EQ_ZERO = 471,
    NE_IP_INCOMP_SX = 472,
    NE_IP_GT_OBSERV = 473,
    NE_VALUE_AT_BOUNDARY_A = 474,
    NE_VALUE_AT_BOUNDARY_B = 475,
    NE_VALUE_AT_BOUNDARY_C = 476,
    NE_VALUE_AT_BOUNDARY_D = 477,
    NE_LSQ_ITER_NOT_CONV = 478,
    NE_RANK_CHANGED = 479,
    NE_ZERO_DOF_ERROR = 480,
    NE_BAD_NY_SET = 481,
    NE_BAD_NX_SET = 482,
    NE_VARCOV_MAT_SINGULAR = 483,
    NE_SQRT_VARCOV_SINGULAR = 484,
    NE_DIAG_ELEM_INVALID = 485,
    NE_DIAG_EQ_ZERO = 486,
    NE_ELEM_GT_ONE = 487,
    NE_INVALID_HUBER_FUN = 488,
    NE_INVALID_DCHI_FUN = 489,
    NE_INVALID_MALLOWS_REG_C = 490,
    NE_INVALID_SCHWEPPE_REG_C = 491,
    NE_BAD_HAMPEL_PSI_FUN = 492,
    NE_WT_ITER_EXCEEDED = 493,
    NE_BETA1_ITER_EXCEEDED = 494,
    NE_THETA_ITER_EXCEEDED = 495,
    NE_LSQ_FAIL_CONV = 496,
    NE_WT_LSQ_NOT_FULL_RANK = 497,
    NE_REG_MAT_SINGULAR = 498,
    NE_COV_MAT_FACTOR_ZERO = 499,
    NE_VAR_THETA_LEQ_ZERO = 500,
    NE_ERR_DOF_LEQ_ZERO = 501,
    NE_ESTIM_SIGMA_ZERO = 502,
    NE_OBS_VAR_CONST = 503,
    NE_C_ITER_NOT_CONV = 504,
    NE_C_ITER_UNSTABLE = 505,
    NE_CPSI_NOT_SET = 506,
    NE_CUCV_NOT_SET = 507,
    NE_HPSI_NOT_SET = 508,
    NE_DCHI_NOT_SET = 509,
    NE_SUM_ZERO = 510,
    NE_UCV = 511,
    NE_CONST_COL = 512,
    NE_COR_MAT_RANK = 513,
    NE_COR_MAT_POSDEF = 514,
    NE_NEG_WEIGHT_ELEMENT = 515,
    NE_VAR_INCL_INDICATED = 516,
    NE_VAR_INCL_COND = 517,
    NE_OBSERV_LT_VAR = 518,
    NE_VAR_INCL_STANDARD = 519,
    NE_ZERO_EIGVALS = 520,
    NE_CANON_CORR_1 = 521,
    NE_GROUPS = 522,
    NE_RANK_ZERO = 523,
    NE_MAT_RANK_ZERO = 524,
    NE_WT_ARGS = 525,
    NE_ACC_ITER = 526,
    NE_NORM_ZERO_PTS = 527,
    NE_LSQ_SCAL_ZERO_PTS = 528,
    NE_MAT_RANK = 529,
    NE_GROUP_OBSERV = 530,
    NE_GROUP_VAR = 531,
    NE_DIAG_0_COND = 532,
    NE_DIAG_0_J_COND = 533,
    NE_VAR_RANK = 534,
    NE_GROUP_VAR_RANK = 535,
    NE_GROUP_SUM = 536,
    NE_PRIOR_SUM = 537,
    NE_IDEN_ELEM_COND = 538,
    NE_DENDROGRAM = 539,
    NE_WT_ZERO = 540,
    NE_CLUSTER_EMPTY = 541,
    NE_DENDROGRAM_ARRAY = 542,
    NE_CLUSTER = 543,
    NE_NONZERO_EIGVALS = 544,
    NE_EIGVAL = 545,
    NE_NEG_OR_ZERO_ARRAY = 546,
    NE_NEG_ELEMENT = 547,
    NE_IT_ARRAY = 548,
    NE_ARRAY_CONSTANT = 549,
    NE_G04BB_STDERR = 550,
    NE_G04BB_CONV = 551,
    NE_G04BB_DESIGN = 552,
    NE_G04BB_TREAT = 553,
    NE_G04BB_RES_DF = 554,
    NE_TOO_SMALL = 555,
    NE_PLOT_TREAT = 556,
    NE_G04CA_RES_DF = 557,
    NE_G04BC_ST_ERR = 558,
    NE_G04BC_REPS = 559,
    NE_G04BC_RESD = 560,
    NE_G04BC_DISCON = 561,
    NE_G04EA_LEVELS = 562,
    NE_G04EA_ORTHO_POLY = 563,
    NE_STUDENTIZED_STAT = 564,
    NE_STATE_CORRUPT = 565,
    NE_REAL_ARG_NON_INTEGRAL = 566,
    NE_SYSTEM_TIME = 567,
    NE_NOT_POS_SEM_DEF = 568,
    NE_START_P_Q = 569,
    NE_REF_VEC = 570,
    NE_PROB_NOT_ONE = 571,
    NE_ALL_PROB_ZERO = 572,
    NE_NEG_PROB = 573,
    NE_STATIONARITY = 574,
    NE_WINS_RES_ZERO = 575,
    NE_ACC = 576,
    NE_POS_DEF = 577,
    NE_ROUND_OFF = 578,
    NE_G08AA_NON_TIED = 579,
    NE_G08AG_SAMP_IDEN = 580,
    NE_G08AH_SAMP_IDEN = 581,
    NE_G08CB_PARAM = 582,
    NE_G08CB_DATA = 583,
    NE_G08CB_SAMPLE = 584,
    NE_G08CB_VARIANCE = 585,
    NE_G08CB_INCOMP_GAMMA = 586,
    NE_G08CD_CONV = 587,
    NE_G08CG_FREQ = 588,
    NE_G08CG_CLASS_VAL = 589,
    NE_G08CG_CONV = 590,
    NE_G08EA_TIE = 591,
    NE_G08EA_RUNS_LENGTH = 592,
    NE_G08EA_COVAR = 593,
    NE_G08EA_RUNS = 594,
    NE_G08EB_PAIRS = 595,
    NE_G08EB_CELL = 596,
    NE_G08EC_CELL = 597,
    NE_G08EC_TRIPLETS = 598,
    NE_G08ED_GAPS_ZERO = 599,
    NE_G08ED_FREQ_ZERO = 600,
    NE_G08ED_GAPS = 601,
    NE_G08ED_FREQ_LT_ONE = 602,
    NE_MANN_WHITNEY_STAT = 603,
    NE_SEQUENCE_SHORT = 604,
    NE_G10AC_DF_RHO = 605,
    NE_G10AC_DF_TOL = 606,
    NE_G10AC_ACC = 607,
    NE_G10AC_CG_RHO = 608,
    NE_G10BA_INIT = 609,
    NE_G10BA_INTERVAL = 610,
    NE_2D_INT_ARR_ELEM = 611,
    NE_2D_INT_ARR_ELEMS = 612,
    NE_TABLE_DEGENERATE = 613,
    NE_LOW_EXPECTED_FREQ = 614,
    NE_MAXT = 615,
    NE_VAR_DIV = 616,
    NE_G11BA_CHANGED = 617,
    NE_CELL_EMPTY = 618,
    NE_INVALID_CENSOR_CODE = 619,
    NE_INVALID_FREQ = 620,
    NE_CHAR_ARG_INVALID = 621,
    NE_G12BA_SZ_IP = 622,
    NE_G12BA_SZ_ISI = 623,
    NE_G12BA_NDMAX = 624,
    NE_G12BA_MAT_SING = 625,
    NE_G12BA_OVERFLOW = 626,
    NE_G12BA_CONV = 627,
    NE_G12BA_DEV = 628,
    NE_TIME_SERIES_IDEN = 629,
    NE_INVALID_AUTOCO_COEF = 630,
    NE_CORR_NOT_POS_DEF = 631,
    NE_INVALID_NSER = 632,
    NE_NPARA_MR_MT_INCONSIST = 633,
    NE_DELTA_TEST_FAILED = 634,
    NE_SOLUTION_FAIL_CONV = 635,
    NE_MAT_NOT_POS_DEF = 636,
    NE_ARIMA_TEST_FAILED = 637,
    NE_ITER_FAIL_NIT = 638,
    NE_G13_OPTIONS_NOT_INIT = 639,
    NE_G13_ORDERS_NOT_INIT = 640,
    NE_NSER_INCONSIST = 641,
    NE_DIFORDER_LEN_INCONSIST = 642,
    NE_SPECTRAL_ESTIM_NEG = 643,
    NE_CONFID_LIMIT_FACT = 644,
    NE_BIVAR_SPECTRAL_ESTIM_ZERO = 645,
    NE_UNIVAR_SPECTRAL_ESTIM_ZERO = 646,
    NE_UNIVAR_SPECTRAL_ESTIM_NEG = 647,
    NE_SQUARED_FREQ_GT_ONE = 648,
    NE_ARIMA_INPUT = 649,
    NE_INPUT_NARMA = 650,
    NE_G13AS_AR = 651,
    NE_G13AS_ZERO_VAR = 652,
    NE_G13AS_ITER = 653,
    NE_G13AS_FACT = 654,
    NE_G13AS_DIAG = 655,
    NE_REQ_AVAIL = 656,
    NE_MPS_USER_MEM = 657,
    NE_MPS_ILLEGAL_DATA_LINE = 658,
    NE_MPS_SPLIT_COL = 659,
    NE_MPS_REPEAT_ROW = 660,
    NE_MPS_ILLEGAL_NAME = 661,
    NE_MPS_ILLEGAL_SETNAME = 662,
    NE_MPS_ILLEGAL_NUMBER = 663,
    NE_MPS_INVALID_INF_BOUND = 664,
    NE_MPS_INVALID_BND_TYPE = 665,
    NE_MPS_INVALID_ROW_TYPE = 666,
    NE_MPS_INVALID_INTORG_INTEND = 667,
    NE_MPS_INVALID_RANGE = 668,
    NE_MPS_INVALID_BND_VAL = 669,
    NE_MPS_NO_NEWLINE = 670,
    NE_MPS_NO_COLS = 671,
    NE_MPS_NO_OBJ = 672,
    NE_MPS_NO_ROWS = 673,
    NE_MPS_TOO_BIG = 674,
    NE_MPS_UNKNOWN_COLNAME = 675,
    NE_MPS_INVALID_INDICATOR = 676,
    NE_MPS_UNKNOWN_ROWNAME = 677,
    NE_MPS_PROB_NOT_FOUND = 678,
    NE_MPS_RHS_RANGE_BND_NOT_FOUND = 679,
    NE_MPS_OPT_NOT_INIT = 680,
    NE_MPS_ENDATA_NOT_FOUND = 681,
    NE_ALLOC_AFTER_MPS = 682,
    NE_PRIORITY_NULL = 683,
    NE_MIP_PROB_NULL = 684,
    NE_MIP_PROB_NOT_INIT = 685,
    NE_MIP_ROOT_UNBOUNDED = 686,
    NE_MIP_ROOT_INFEAS = 687,
    NE_MIP_ROOT_MAX_ITER = 688,
    NW_MIP_FIRST_INT_SOL = 689,
    NW_MIP_NO_INT_SOL = 690,
    NW_MIP_MAX_ITER_INT_SOL = 691,
    NW_MIP_MAX_ITER_NO_INT_SOL = 692,
    NW_MIP_MAX_NODES_INT_SOL = 693,
    NW_MIP_MAX_NODES_NO_INT_SOL = 694,
    NW_MIP_MAX_DEPTH_INT_SOL = 695,
    NW_MIP_MAX_DEPTH_NO_INT_SOL = 696,
    NE_MIP_ROOT_HESS_TOO_BIG = 697,
    NE_MIP_HESS_TOO_BIG_INT_SOL = 698,
    NE_MIP_HESS_TOO_BIG_NO_INT_SOL = 699,
    NE_CH_LOOP = 700,
    NE_BAD_RANK = 701,
    NE_REZ_OVERFLOW = 702,
    NE_IMZ_OVERFLOW = 703,
    NE_Z_OVERFLOW = 704,
    NE_IMZ_HALF_PREC = 705,
    NE_IMZ_NO_PREC = 706,
    NE_REAL_ARG_TOO_SMALL = 707,
    NE_REAL_ARG_NEG_INT = 708,
    NE_UNDERFLOW_LIKELY = 709,
    NE_OVERFLOW_LIKELY = 710,
    NW_SOME_PRECISION_LOSS = 711,
    NE_TOTAL_PRECISION_LOSS = 712,
    NE_TERMINATION_FAILURE = 713,
    NE_INFINITE = 714,
    NE_S21_CONV = 715,
    NE_NO_LICENCE = 716,
    NE_INT_ARRAY = 717,
    NE_VACUUM = 718,
    NE_RESULT_NO_PRECISION = 719,
    NE_RESULT_HALF_PRECISION = 720,
    NE_RESULT_REAL_OVERFLOW = 721,
    NE_RESULT_IMAGINARY_OVERFLOW = 722,
    NE_RESULT_OVERFLOW = 723,
    NE_INTERNAL_WORKSPACE = 724,
    NE_TOO_CLOSE_INTEGER = 725,
    NE_SUM_WEIGHT = 2013,
    NE_ZERO_VARIANCE = 2014,
    NE_NOT_AVAILABLE = 2015
};

/* In C++ the enumerations get int as their fixed underlying type, so that
   any int value passed by a caller is a valid value of the type (and is
   rejected by the routine's own check, not undefined). */
#ifdef __cplusplus
#define KIV_ENUM_TYPE(tag) enum tag : int
#else
#define KIV_ENUM_TYPE(tag) enum tag
#endif

/* Enumerations. Every member takes its value from one shared numbering,
   so no two members of any enumerations share a value. */
typedef KIV_ENUM_TYPE(Kiv_Tail_tag){Kiv_LowerTail = 1329,     Kiv_UpperTail = 1330,
                                    Kiv_TwoTailSignif = 1331, Kiv_TwoTailConfid = 1332,
                                    Kiv_TwoTail = 1333,       Kiv_Central = 1334} Kiv_Tail;

typedef KIV_ENUM_TYPE(Kiv_IncludeMean_tag){Kiv_MeanInclude = 1358,
                                           Kiv_MeanZero = 1359} Kiv_IncludeMean;

typedef KIV_ENUM_TYPE(Kiv_SumSquare_tag){Kiv_AboutMean = 1362, Kiv_AboutZero = 1363} Kiv_SumSquare;

/* Storage order of a data matrix (g02buc): 1500 and 1501 are used by no
   other member of the shared numbering. */
typedef KIV_ENUM_TYPE(Kiv_OrderType_tag){Kiv_RowMajor = 1500, Kiv_ColMajor = 1501} Kiv_OrderType;

/* Class boundaries of a frequency table (g01aec): given by the caller or
   computed as equally spaced. 1510 and 1511 are used by no other member. */
typedef KIV_ENUM_TYPE(Kiv_ClassBoundary_tag){Kiv_ClassBoundaryUser = 1510,
                                             Kiv_ClassBoundaryComp = 1511} Kiv_ClassBoundary;

/* ---- runtime ------------------------------------------------------------ */
KIV_API void kiv_report_error(const char *message, int code, const char *routine, KivError *fail);
KIV_API int kiv_ifail_exit(int ifail, int ierror, const char *routine, int nrec,
                           const char *message, int routine_len, int message_len);
/* Name of an error code ("NE_ALLOC_FAIL") or NULL when the code is unknown. */
KIV_API const char *kiv_error_name(int code);

KIV_API double x02ajc(void); /* machine precision, 2^-53 (1 + 2^-52) */
KIV_API double x02akc(void); /* smallest normalised double, 2^-1022 */
KIV_API double x02alc(void); /* largest finite double */

/* Workspace: allocate, reallocate and free (clearing the pointer) blocks through
   the library's allocator. */
KIV_API void *x04bbc(size_t size);
KIV_API void *x04bcc(void *block, size_t size);
KIV_API void x04bdc(void **block);
/* Output units: append a text record to a file; the unit number for error
   messages (flag 0 asks, which always answers 6). */
KIV_API void x04bay(const char *file, const char *text);
KIV_API void x04aaf(int flag, int *unit);

/* ---- special functions ---------------------------------------------------- */
KIV_API double s15abc(double x); /* normal lower tail P(x) */
KIV_API double s15acc(double x); /* normal upper tail Q(x) */
KIV_API double s15adc(double x); /* erfc(x) */
KIV_API double s15aec(double x); /* erf(x) */
/* Regularized incomplete gamma functions P(a, x) and Q(a, x), a > 0, x >= 0,
   to the relative accuracy tol (0 = best). */
KIV_API void s14bac(double a, double x, double tol, double *p, double *q, KivError *fail);
KIV_API double s14aac(double x, KivError *fail); /* gamma function */
KIV_API double s14abc(double x, KivError *fail); /* log of the gamma function */

/* Batch forms: element i equals the scalar routine's result bit for bit;
   one report per call. */
KIV_API void s15adc_v(int n, const double x[], double out[]);
KIV_API void g01eac_v(Kiv_Tail tail, int n, const double x[], double out[], KivError *fail);
KIV_API void g01fac_v(Kiv_Tail tail, int n, const double p[], double out[], KivError *fail);

/* ---- distributions and descriptive statistics ---------------------------- */
/* Standard normal tail probability: lower P(X <= x), upper P(X >= x),
   two-tail significance P(|X| >= |x|) or confidence P(|X| <= |x|). */
KIV_API double g01eac(Kiv_Tail tail, double x, KivError *fail);
/* Standard normal deviate for a probability p of the given tail, 0 < p < 1. */
KIV_API double g01fac(Kiv_Tail tail, double p, KivError *fail);
/* Standard normal deviate x with P(X <= x) = p. */
KIV_API double g01cec(double p, KivError *fail);
/* Chi-square tail probability (lower or upper), x >= 0, df > 0 degrees of
   freedom, to relative accuracy 5e-06. */
KIV_API double g01ecc(Kiv_Tail tail, double x, double df, KivError *fail);
/* Gamma tail probability (lower or upper), shape a > 0, scale b > 0. */
KIV_API double g01efc(Kiv_Tail tail, double g, double a, double b, KivError *fail);
/* Weighted mean, standard deviation, skewness, excess kurtosis (divisor n - 1
   for all three moments), extremes and the sum of the weights, in one pass;
   wt may be null for unit weights. */
KIV_API void g01aac(int n, const double x[], const double wt[], int *nvalid, double *xmean,
                    double *xsd, double *xskew, double *xkurt, double *xmin, double *xmax,
                    double *wsum, KivError *fail);

/* Student's t tail probability (lower, upper, two-tail significance or
   confidence), real df > 0 (df = +inf: the normal). */
KIV_API double g01ebc(Kiv_Tail tail, double t, double df, KivError *fail);
/* F distribution tail probability (lower or upper), f >= 0, df1, df2 > 0. */
KIV_API double g01edc(Kiv_Tail tail, double f, double df1, double df2, KivError *fail);
/* The same with the integer error-flag interface: tail "L" or "U" (first
   character, either case); ifail 1 bad tail, 2 f < 0, 3 df1 or df2 <= 0. */
KIV_API double g01edf(const char *tail, double f, double df1, double df2, int *ifail,
                      int tail_len);
/* Beta distribution B(a, b) at 0 <= x <= 1: p = I_x(a, b), q = 1 - p (each
   direct) and the density; tol the relative accuracy asked (0 = best). */
KIV_API void g01eec(double x, double a, double b, double tol, double *p, double *q, double *pdf,
                    KivError *fail);
/* Deviates for a probability, each found in the probability's own tail:
   Student's t for the tail given (as g01fac), chi-square, F and beta (lower
   tail p), gamma with shape a and scale b; tol the relative accuracy asked
   (0 = best). */
KIV_API double g01fbc(Kiv_Tail tail, double p, double df, KivError *fail);
KIV_API double g01fcc(double p, double df, KivError *fail);
KIV_API double g01fdc(double p, double df1, double df2, KivError *fail);
KIV_API double g01fec(double p, double a, double b, double tol, KivError *fail);
KIV_API double g01ffc(double p, double a, double b, double tol, KivError *fail);
/* Studentized range: P(Q <= q) for ir >= 2 groups and v >= 1 degrees of
   freedom (g01emf: the error-flag form, ifail 1 q < 0, 2 v < 1 or ir < 2),
   and the deviate for a lower-tail probability. */
KIV_API double g01emc(double q, double v, int ir, KivError *fail);
KIV_API double g01emf(double q, double v, int ir, int *ifail);
KIV_API double g01fmc(double p, double v, int ir, KivError *fail);
/* Von Mises distribution function on [-pi, pi], concentration vk > 0. */
KIV_API double g01erc(double t, double vk, KivError *fail);
/* Bivariate standard normal P(X <= x, Y <= y), correlation -1 <= rho <= 1. */
KIV_API double g01hac(double x, double y, double rho, KivError *fail);
/* Multivariate normal probability, n >= 2, mean xmu, covariance sig (n by n,
   row stride tdsig, positive semi-definite): Kiv_LowerTail P(X <= b),
   Kiv_UpperTail P(X >= a), Kiv_Central P(a <= X <= b), to the absolute
   accuracy tol within maxpts integrand evaluations (else the warning
   NE_ACC with the best estimate); reproducible. */
KIV_API double g01hbc(Kiv_Tail tail, int n, const double a[], const double b[],
                      const double xmu[], const double sig[], int tdsig, double tol, int maxpts,
                      KivError *fail);

/* Grouped data: mean, sd, skewness, kurtosis of class marks x with
   frequencies ifreq (divisors as g01aac), n the total frequency. */
KIV_API void g01adc(int k, const double x[], const int ifreq[], double *xmean, double *xsd,
                    double *xskew, double *xkurt, int *n, KivError *fail);
/* Frequency table of n values in num_class classes (cint[i-1] <= x < cint[i],
   the end classes open), boundaries computed or given. */
KIV_API void g01aec(int n, const double x[], int num_class, Kiv_ClassBoundary cltype,
                    double cint[], int ifreq[], double *xmin, double *xmax, KivError *fail);
/* Tukey's five-number summary: minimum, lower hinge, median, upper hinge,
   maximum (by selection, not a full sort). */
KIV_API void g01alc(int n, const double x[], double res[5], KivError *fail);
/* Reciprocal Mills' ratio of the standard normal, phi(x)/(1 - Phi(x)), for
   every x. */
KIV_API double g01mbc(double x);

/* ---- random numbers -------------------------------------------------------- */
/* The next uniform number in (0, 1) of the thread's basic generator. */
KIV_API double g05cac(void);
/* The basic generator's state for a thread (internal use of the other G05
   routines). */
KIV_API void g05caz(int *code, int **pieces, double **carries, double **buffer, double **scale);
/* Seed the basic generator repeatably, or from the clock. */
KIV_API void g05cbc(int seed);
KIV_API void g05ccc(void);
/* Save the basic generator's state, and restore it (checked). */
KIV_API void g05cfc(int istate[9], double xstate[4]);
KIV_API void g05cgc(const int istate[9], const double xstate[4], KivError *fail);
/* Calendar time in seconds. */
KIV_API long x05aac(void);
/* Variates: uniform between a and b, exponential with mean |a|, normal with
   mean a and standard deviation b, uniform integer between i and j. */
KIV_API double g05dac(double a, double b);
KIV_API double g05dbc(double a);
KIV_API double g05ddc(double a, double b);
KIV_API int g05dyc(int i, int j);
/* Caller-held generators: igen 0 the basic generator, 1..273 a Wichmann-Hill
   combined generator; the state lives in iseed. A uniform from it, and its
   repeatable and clock seeding. */
KIV_API double g05kac(int igen, int iseed[4]);
KIV_API void g05kbc(int *igen, int iseed[4]);
KIV_API void g05kcc(int *igen, int iseed[4]);

/* ---- correlation ------------------------------------------------------------ */
/* Kendall (below the diagonal) and Spearman (above) rank correlations of the
   selected variables over the selected observations (svar, sobs may be null). */
KIV_API void g02brc(int n, int m, const double x[], int tdx, const int svar[], const int sobs[],
                    double corr[], int tdc, KivError *fail);
/* Update weighted means and sums of squares and cross-products (packed) by
   one observation. */
KIV_API void g02btc(Kiv_SumSquare mean, int m, double wt, const double x[], int incx, double *sw,
                    double xbar[], double c[], KivError *fail);
/* Weighted means and sums of squares and cross-products of a data matrix. */
KIV_API void g02buc(Kiv_SumSquare mean, Kiv_OrderType order, int n, int m, const double x[],
                    int pdx, const double wt[], double *sw, double wmean[], double c[],
                    KivError *fail);
/* Correlation matrix from packed sums of squares and cross-products, in place. */
KIV_API void g02bwc(int m, double r[], KivError *fail);
/* Weighted Pearson correlations, variance-covariance matrix, means and
   standard deviations of the selected variables. */
KIV_API void g02bxc(int n, int m, const double x[], int tdx, const int sx[], const double wt[],
                    double *sw, double wmean[], double std[], double r[], int tdr, double v[],
                    int tdv, KivError *fail);
/* Partial correlations of ny variables given nx others (isz: -1 correlate,
   1 partial out, 0 leave out). */
KIV_API void g02byc(int m, int ny, int nx, const int isz[], const double r[], int tdr, double p[],
                    int tdp, KivError *fail);

/* ---- time series -------------------------------------------------------------- */
/* d simple and ds seasonal differences of lag s; xd holds the differenced
   series followed by the values needed to undo it (room for nx values). */
KIV_API void g13aac(const double x[], int nx, int d, int ds, int s, double xd[], int *nxd,
                    KivError *fail);
/* Mean, variance, autocorrelations at lags 1..nk and the Box-Pierce
   statistic. */
KIV_API void g13abc(const double x[], int nx, int nk, double *xm, double *xv, double r[],
                    double *stat, KivError *fail);
/* Partial autocorrelations, prediction-error variance ratios and
   autoregressive coefficients from autocorrelations (Durbin-Levinson). */
KIV_API void g13acc(const double r[], int nk, int nl, double p[], double v[], double ar[], int *nvl,
                    KivError *fail);

#ifdef __cplusplus
}
#endif

#endif /* KIV_H */
