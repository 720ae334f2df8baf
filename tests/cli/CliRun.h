#pragma once

// Runs the real command-line program in a folder of its own for each test.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace flickerscribe::test {

struct CliResult {
    int status = -1;
    std::string out;
    std::string err;
};

class CliRun : public ::testing::Test {
protected:
    void SetUp() override {
        const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
        dir_ = std::filesystem::temp_directory_path() / ("flickerscribe-cli-" + std::to_string(::getpid()) +
                                                         "-" + info->test_suite_name() + "-" + info->name());
        std::filesystem::remove_all(dir_);
        std::filesystem::create_directories(dir_);
    }
    void TearDown() override { std::filesystem::remove_all(dir_); }

    std::filesystem::path Path(const std::string& name) const { return dir_ / name; }

    static std::string Slurp(const std::filesystem::path& path) {
        std::ifstream in(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }

    // Runs the program in the test's folder with `input` on standard input
    // (a file, so never a terminal).
    CliResult Run(const std::vector<std::string>& args, const std::string& input = "") const {
        std::ofstream(Path("stdin"), std::ios::binary) << input;
        std::string command = "cd " + Quote(dir_.string()) + " && " + Quote(FS_CLI_PATH);
        for (const auto& arg : args) command += " " + Quote(arg);
        command += " <stdin >stdout 2>stderr";
        const int raw = std::system(command.c_str());
        return {WIFEXITED(raw) ? WEXITSTATUS(raw) : -1, Slurp(Path("stdout")), Slurp(Path("stderr"))};
    }

private:
    static std::string Quote(const std::string& arg) {
        std::string quoted = "'";
        for (char c : arg) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
        return quoted + "'";
    }

    std::filesystem::path dir_;
};

}  // namespace flickerscribe::test
