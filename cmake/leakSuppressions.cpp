// For the sanitizer build: Qt keeps what it knows of a thread that it has not started itself, and
// the tool's workers are such threads. A thread of its own it waits for before that has given back
// all, so that now and then a program that ends is faster. Nothing is said of either, since tests
// compare what is said.
// NOLINTBEGIN(bugprone-reserved-identifier): the sanitizer calls these by their names.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libQt6Core\n";
}

extern "C" const char* __lsan_default_options();
extern "C" const char* __lsan_default_options() {
    return "print_suppressions=0";
}
// NOLINTEND(bugprone-reserved-identifier)
