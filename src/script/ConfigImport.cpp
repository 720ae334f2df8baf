#include "script/ConfigImport.h"

#include <algorithm>
#include <utility>

#include "colour/NumberText.h"
#include "document/TextFile.h"

namespace flickerscribe {
namespace {

std::string_view TrimLeadingBlanks(std::string_view s) {
    const auto first = s.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view{} : s.substr(first);
}

std::string_view TrimBlanks(std::string_view s) {
    s = TrimLeadingBlanks(s);
    const auto last = s.find_last_not_of(' ');
    return last == std::string_view::npos ? std::string_view{} : s.substr(0, last + 1);
}

bool IsCommentLine(std::string_view line) {
    return TrimLeadingBlanks(line).starts_with("//");
}

char LowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool IsSetName(std::string_view statement) {
    constexpr std::string_view kSetName = "set name";
    if (statement.size() < kSetName.size()) return false;
    return std::equal(kSetName.begin(), kSetName.end(), statement.begin(),
                      [](char want, char got) { return want == LowerAscii(got); });
}

void SetName(std::string_view statement, ImportRun& run) {
    if (statement.size() <= 9) return;
    if (!run.script.AppendLine(RemoveQuotes(statement.substr(9)), "15", "[none]")) {
        run.full = true;
        return;
    }
    run.lastAppended = run.script.Count();
}

void Wait(std::string_view statement, ImportRun& run) {
    std::string time = RemoveQuotes(TrimBlanks(statement.substr(5)));
    if (!IsNumberText(time) || run.lastAppended == 0) return;
    run.script.SetLineTime(run.lastAppended, std::move(time));
}

}  // namespace

std::string RemoveQuotes(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (char c : text) {
        if (c != '"') out += c;
    }
    return out;
}

void ParseStatement(std::string_view statement, ImportRun& run) {
    if (IsSetName(statement)) {
        SetName(statement, run);
    } else if (statement.starts_with("wait") && statement.size() >= 6) {
        Wait(statement, run);
    }
}

void ParseScriptLine(std::string_view line, ImportRun& run) {
    if (run.full || IsCommentLine(line)) return;
    std::size_t start = 0;
    for (;;) {
        const auto semicolon = line.find(';', start);
        const std::string_view piece = line.substr(start, semicolon - start);
        const std::string_view statement = TrimLeadingBlanks(piece);
        if (!statement.empty()) ParseStatement(statement, run);
        if (semicolon == std::string_view::npos || run.full) return;
        start = semicolon + 1;
    }
}

LoadStatus ImportBytes(std::string_view data, AnimationScript& script) {
    AnimationScript::Batch batch(script);
    script.ClearLines();
    ImportRun run(script);
    ForEachTextLine(data, [&](std::string_view line) {
        ParseScriptLine(line, run);
        return !run.full;
    });
    return run.full ? LoadStatus::Truncated : LoadStatus::Loaded;
}

LoadStatus ImportFile(const std::string& path, AnimationScript& script) {
    const auto data = ReadFileBytes(path);
    if (!data) return LoadStatus::ReadFailed;
    return ImportBytes(*data, script);
}

}  // namespace flickerscribe
