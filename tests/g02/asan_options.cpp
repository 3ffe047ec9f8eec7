// Under AddressSanitizer a refused allocation must come back as a null
// pointer (the routines report NE_ALLOC_FAIL) instead of stopping the test.
extern "C" const char *__asan_default_options();
extern "C" const char *__asan_default_options() {
    return "allocator_may_return_null=1";
}
