/*
 * ch_host.h - the interpreter's runtime functions that the module imports.
 *
 * On Windows they come from the interpreter's runtime ch.dll (through the
 * import library made from ch.def); elsewhere they are resolved from the
 * process that loads libkiv.dl. Declared exactly as the interpreter
 * defines them.
 */
#ifndef KIV_BINDING_CH_HOST_H
#define KIV_BINDING_CH_HOST_H

#ifdef __cplusplus
extern "C" {
#endif

typedef void *ChInterp_t;
typedef void *ChVaList_t;
ChVaList_t __builtin_Ch_VaStart(ChInterp_t *interp, void *varg);   /* stores the handle, returns the cursor */
void      *__builtin_Ch_VaArg_kernel(ChInterp_t interp, ChVaList_t *ap);
void       Ch_VaEnd(ChInterp_t interp, ChVaList_t ap);
int        Ch_CallFuncByAddr(ChInterp_t interp, void *func, void *result, ...);

#ifdef __cplusplus
}
#endif

#endif /* KIV_BINDING_CH_HOST_H */
