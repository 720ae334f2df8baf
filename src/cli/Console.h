#pragma once

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

// The command line and the terminal as this system has them; ConsolePosix.cpp
// and ConsoleWindows.cpp are the two implementations.
namespace flickerscribe::cli {

// The program's arguments (without its name) as UTF-8. On Windows they come
// from the wide-character command line, so the console's code page doesn't
// matter, and standard input and output are switched to binary there, so that
// the bytes of a file or pipe go through unchanged.
std::vector<std::string> ProgramArguments(int argc, char** argv);

bool IsTerminal(std::FILE* stream);

// Writes UTF-8 text to a terminal. False when the write failed.
bool WriteToTerminal(std::FILE* stream, std::string_view utf8);

}  // namespace flickerscribe::cli
