#include "document/TextFile.h"

#include "document/platform/Files.h"

namespace flickerscribe {

std::optional<std::string> ReadFileBytes(const std::string& path, FileKinds kinds) {
    return platform::ReadWholeFile(path, kinds);
}

std::vector<std::string_view> SplitTextLines(std::string_view data) {
    std::vector<std::string_view> lines;
    ForEachTextLine(data, [&](std::string_view l) {
        lines.push_back(l);
        return true;
    });
    return lines;
}

}  // namespace flickerscribe
