// Sanitizer defaults for the programs we build, so ctest and a plain run agree.
// The runtime looks these functions up by name; without sanitizers nothing calls them.

extern "C" {

const char* __asan_default_options() {
    return "detect_leaks=1";
}

const char* __ubsan_default_options() {
    return "print_stacktrace=1";
}

// fontconfig keeps its font caches for the life of the process, by design, and Pango and
// Cairo reach them; they are not our leaks.
const char* __lsan_default_suppressions() {
    return "leak:libfontconfig.so\n";
}
}
