#include "cli/Terminal.h"

#include "cli/Args.h"
#include "document/AnimationFile.h"
#include "document/Cp1252.h"
#include "document/SafeWrite.h"
#include "document/TextFile.h"

namespace flickerscribe::cli {

std::optional<std::string> TextArgument(std::string_view utf8) {
    const auto codePoints = DecodeUtf8(utf8);
    if (!codePoints) return std::nullopt;
    std::string text;
    text.reserve(codePoints->size());
    for (std::size_t i = 0; i < codePoints->size(); ++i) {
        const char32_t c = (*codePoints)[i];
        // A text holds no line break, as in the window's one-line boxes: each
        // break (CR LF as one) becomes a blank.
        if (c == U'\r' || c == U'\n' || c == U'\u2028' || c == U'\u2029') {
            if (c == U'\r' && i + 1 < codePoints->size() && (*codePoints)[i + 1] == U'\n') ++i;
            text += ' ';
        } else {
            text += UnicodeToCp1252(c);
        }
    }
    return text;
}

std::string NotUtf8(std::string_view argument) {
    return std::string(argument) + " is no valid UTF-8 text";
}

bool WriteText(std::FILE* stream, std::string_view text) {
    if (IsTerminal(stream)) return WriteToTerminal(stream, Cp1252ToUtf8(text));
    return std::fwrite(text.data(), 1, text.size(), stream) == text.size();
}

bool WriteNative(std::FILE* stream, std::string_view text) {
    if (IsTerminal(stream)) return WriteToTerminal(stream, text);
    return std::fwrite(text.data(), 1, text.size(), stream) == text.size();
}

void Complain(std::string_view message) {
    std::string line(kProgramName);
    line += ": ";
    line += message;
    line += '\n';
    WriteNative(stderr, line);
}

std::optional<std::string> ReadInput(const std::string& path) {
    if (path != "-") return ReadFileBytes(path, FileKinds::AnyKind);
    std::string data;
    char buffer[1 << 16];
    for (;;) {
        const std::size_t n = std::fread(buffer, 1, sizeof buffer, stdin);
        data.append(buffer, n);
        if (data.size() > kMaxFileBytes) return std::nullopt;
        if (n < sizeof buffer) break;
    }
    if (std::ferror(stdin)) return std::nullopt;
    return data;
}

bool ReadAnimationInput(const std::string& path, AnimationScript& script, bool& cut) {
    const auto data = ReadInput(path);
    if (!data) {
        CannotRead(path);
        return false;
    }
    cut = LoadAnimationBytes(*data, script) == LoadStatus::Truncated;
    if (cut) LineLimitReached();
    return true;
}

int CannotRead(const std::string& path) {
    Complain(path == "-" ? std::string("cannot read standard input") : "cannot read " + path);
    return kExitFileError;
}

int LineLimitReached() {
    Complain(
        "an animation holds at most 32767 lines; the lines up to that limit were kept, the rest "
        "was left out");
    return kExitLineLimit;
}

int WriteResult(const std::optional<std::string>& file, std::string_view bytes) {
    if (file && *file != "-") {
        if (const auto error = WriteFileSafely(*file, bytes, FileKinds::AnyKind)) {
            Complain("cannot write " + *file + ": " + error->text + " (" + std::to_string(error->number) +
                     ")");
            return kExitFileError;
        }
        return kExitOk;
    }
    if (!WriteText(stdout, bytes) || std::fflush(stdout) != 0) {
        Complain("cannot write standard output");
        return kExitFileError;
    }
    return kExitOk;
}

}  // namespace flickerscribe::cli
