// How AddressSanitizer watches a fuzz program: what was freed is kept away long enough for an input of a few
// kilobytes, and where memory came from is not noted. More would take most of the time; ASAN_OPTIONS asks for
// it.
extern "C" const char* __asan_default_options() {  // NOLINT(bugprone-reserved-identifier): the runtime's name
    return "quarantine_size_mb=4:malloc_context_size=1";
}
