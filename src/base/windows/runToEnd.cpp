#include "runToEnd.h"

#include "paths.h"

#include <windows.h>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

/// A word of a command line, as programs take command lines apart.
std::wstring quoted(const std::wstring& word) {
    std::wstring text = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t c : word) {
        if (c == L'"') {
            text.append(backslashes + 1, L'\\');
        }
        text += c;
        backslashes = c == L'\\' ? backslashes + 1 : 0;
    }
    return text.append(backslashes, L'\\') + L'"';
}

}  // namespace

bool runToEnd(const fs::path& program, const std::string& argument, const fs::path& folder) {
    // Found from here, and not from the folder in which it is to run.
    const fs::path file = fs::absolute(program);
    std::wstring line = quoted(file.wstring()) + L' ' + quoted(nativePath(argument).wstring());
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    // No console window flashes up for it: it shares that which is there, if there is one.
    const DWORD window = GetConsoleWindow() == nullptr ? CREATE_NO_WINDOW : 0;
    if (CreateProcessW(file.c_str(), line.data(), nullptr, nullptr, TRUE, window, nullptr,
                       folder.c_str(), &start, &process) == 0) {
        return false;
    }
    DWORD status = 1;
    const bool isEnded = WaitForSingleObject(process.hProcess, INFINITE) == WAIT_OBJECT_0 &&
                         GetExitCodeProcess(process.hProcess, &status) != 0;
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return isEnded && status == 0;
}

}  // namespace fleetwright
