#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include "cli/Console.h"
// After windows.h, which it needs.
#include <shellapi.h>

namespace flickerscribe::cli {
namespace {

std::string Narrow(const wchar_t* wide) {
    const int size = WideCharToMultiByte(CP_UTF8, 0, wide, -1, nullptr, 0, nullptr, nullptr);
    if (size <= 1) return {};
    std::string utf8(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide, -1, utf8.data(), size, nullptr, nullptr);
    utf8.pop_back();  // the terminating zero
    return utf8;
}

// The console behind a stream, or nullptr when the stream goes elsewhere (a
// file, a pipe, the NUL device).
HANDLE ConsoleOf(std::FILE* stream) {
    const auto handle = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
    DWORD mode = 0;
    return handle != INVALID_HANDLE_VALUE && GetConsoleMode(handle, &mode) ? handle : nullptr;
}

}  // namespace

std::vector<std::string> ProgramArguments(int, char**) {
    for (std::FILE* stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
    int count = 0;
    wchar_t** wide = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> args;
    for (int i = 1; i < count; ++i) args.push_back(Narrow(wide[i]));
    LocalFree(wide);
    return args;
}

bool IsTerminal(std::FILE* stream) {
    return ConsoleOf(stream) != nullptr;
}

// The console takes wide characters whatever its code page.
bool WriteToTerminal(std::FILE* stream, std::string_view utf8) {
    const HANDLE console = ConsoleOf(stream);
    if (console == nullptr) return std::fwrite(utf8.data(), 1, utf8.size(), stream) == utf8.size();
    if (utf8.empty()) return true;
    std::fflush(stream);
    const int size = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), wide.data(), size);
    DWORD written = 0;
    return WriteConsoleW(console, wide.data(), static_cast<DWORD>(wide.size()), &written, nullptr) &&
           written == wide.size();
}

}  // namespace flickerscribe::cli
