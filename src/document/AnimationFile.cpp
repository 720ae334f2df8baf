#include "document/AnimationFile.h"

#include <algorithm>

#include "document/TextFile.h"
#include "document/platform/Files.h"

namespace flickerscribe {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kDefaultTime = "15";
constexpr std::string_view kNoAction = "[none]";

}  // namespace

bool FileExists(const std::string& path) {
    return platform::CanOpenForReading(path);
}

LoadStatus LoadAnimationBytes(std::string_view data, AnimationScript& script) {
    AnimationScript::Batch batch(script);
    script.ClearLines();
    LoadStatus status = LoadStatus::Loaded;
    bool first = true;
    bool magic = false;
    std::string_view record[2];  // Text and Time of the record being read
    int inRecord = 0;            // lines of it read so far
    ForEachTextLine(data, [&](std::string_view line) {
        if (first) {
            first = false;
            magic = line == kAnimationMagic;
            return true;
        }
        bool added = true;
        if (!magic) {
            added = script.AppendLine(std::string(line), std::string(kDefaultTime), std::string(kNoAction));
        } else if (inRecord < 2) {
            record[inRecord++] = line;
        } else {
            // The third line is read and dropped; only a full record is added.
            inRecord = 0;
            added = script.AppendLine(std::string(record[0]), std::string(record[1]), std::string(kNoAction));
        }
        if (!added) status = LoadStatus::Truncated;
        return added;
    });
    return status;
}

LoadStatus LoadAnimationFile(const std::string& path, AnimationScript& script) {
    // The whole file first: the old animation goes only for one read to its end.
    const auto data = ReadFileBytes(path);
    if (!data) return LoadStatus::ReadFailed;
    return LoadAnimationBytes(*data, script);
}

bool IsWholeAnimationFile(std::string_view data) {
    if (!data.starts_with(kAnimationMagic) || !data.ends_with(kLineEnd)) return false;
    data.remove_prefix(kAnimationMagic.size());
    std::size_t lines = 0;
    for (std::size_t at = data.find(kLineEnd); at != std::string_view::npos; at = data.find(kLineEnd, at + 2))
        ++lines;
    // Every CR ends a line, and the magic line's end is the first of them.
    return data.starts_with(kLineEnd) && (lines - 1) % 3 == 0 &&
           static_cast<std::size_t>(std::count(data.begin(), data.end(), '\r')) == lines;
}

LoadStatus LoadWholeAnimationFile(const std::string& path, AnimationScript& script) {
    const auto data = ReadFileBytes(path);
    if (!data || !IsWholeAnimationFile(*data)) return LoadStatus::ReadFailed;
    return LoadAnimationBytes(*data, script);
}

std::string AnimationFileBytes(const AnimationScript& script) {
    std::size_t size = kAnimationMagic.size() + kLineEnd.size();
    for (int i = 1; i <= script.Count(); ++i) {
        const auto& line = script.LineAt(i);
        size += line.Text.size() + line.Time.size() + line.Action.size() + 3 * kLineEnd.size();
    }
    std::string out;
    out.reserve(size);
    const auto addLine = [&out](std::string_view text) {
        out += text;
        out += kLineEnd;
    };
    addLine(kAnimationMagic);
    for (int i = 1; i <= script.Count(); ++i) {
        const auto& line = script.LineAt(i);
        addLine(line.Text);
        addLine(line.Time);
        addLine(line.Action);
    }
    return out;
}

std::optional<SaveError> SaveAnimationFile(const std::string& path, const AnimationScript& script) {
    return WriteFileSafely(path, AnimationFileBytes(script));
}

}  // namespace flickerscribe
