// What the sanitizers of a test program are told, wherever it is started from.
// Part of every test program; without sanitizers nobody calls these.
extern "C" {

const char* __asan_default_options() { return "detect_stack_use_after_return=1"; }

const char* __ubsan_default_options() { return "print_stacktrace=1"; }

const char* __lsan_default_options() { return "print_suppressions=0"; }

// What the toolkit keeps for the life of a process: types, fonts, settings.
const char* __lsan_default_suppressions() {
  return "leak:libfontconfig\n"
         "leak:libpango\n"
         "leak:libglib-2.0\n"
         "leak:libgobject-2.0\n"
         "leak:libgdk-x11-2.0\n"
         "leak:libgtk-x11-2.0\n"
         "leak:libX11\n"
         "leak:libXcursor\n"
         "leak:libcairo\n"
         "leak:libgtkmm-2.4\n"
         "leak:libgdkmm-2.4\n"
         "leak:libglibmm-2.4\n";
}
}
