#include <unistd.h>

#include <algorithm>

#include "cli/Console.h"

namespace flickerscribe::cli {

std::vector<std::string> ProgramArguments(int argc, char** argv) {
    return std::vector<std::string>(argv + std::min(argc, 1), argv + argc);
}

bool IsTerminal(std::FILE* stream) {
    return ::isatty(::fileno(stream)) == 1;
}

// A terminal here speaks UTF-8 itself.
bool WriteToTerminal(std::FILE* stream, std::string_view utf8) {
    return std::fwrite(utf8.data(), 1, utf8.size(), stream) == utf8.size();
}

}  // namespace flickerscribe::cli
