#include "terminal.h"

#include "paths.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <shellapi.h>

namespace fleetwright {

bool isTerminal(std::FILE* stream) {
    return _isatty(_fileno(stream)) != 0;
}

std::vector<std::string> commandLine(int argc, const char* const* argv) {
    SetConsoleOutputCP(CP_UTF8);
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    // `argv` lacks the letters that the system's code page has no place for.
    int count = 0;
    LPWSTR* const words = CommandLineToArgvW(GetCommandLineW(), &count);
    if (words == nullptr) {
        return {argv, argv + argc};
    }
    std::vector<std::string> line;
    for (int i = 0; i < count; ++i) {
        line.push_back(pathText(words[i]));
    }
    LocalFree(words);
    return line;
}

}  // namespace fleetwright
