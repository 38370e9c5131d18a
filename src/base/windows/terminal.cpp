#include "terminal.h"

#include "paths.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

// What the start of each program takes its command line apart with; no header of the compiler has
// it.
struct StartUp {
    int newMode = 0;
};
extern "C" int __cdecl __wgetmainargs(int* count, wchar_t*** words, wchar_t*** environment,
                                      int expandsWildcards, StartUp* startUp);

namespace fleetwright {

bool isTerminal(std::FILE* stream) {
    return _isatty(_fileno(stream)) != 0;
}

std::vector<std::string> commandLine(int argc, const char* const* argv) {
    SetConsoleOutputCP(CP_UTF8);
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    // `argv` lacks the letters that the system's code page has no place for, and the files that "*"
    // and "?" mean, which no shell of this system puts in their place.
    int count = 0;
    wchar_t** words = nullptr;
    wchar_t** environment = nullptr;
    StartUp startUp;
    if (__wgetmainargs(&count, &words, &environment, 1, &startUp) != 0) {
        return {argv, argv + argc};
    }
    std::vector<std::string> line;
    for (int i = 0; i < count; ++i) {
        line.push_back(pathText(words[i]));
    }
    return line;
}

}  // namespace fleetwright
