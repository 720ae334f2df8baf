#include "script/ScriptText.h"

#include <algorithm>
#include <cmath>

#include "colour/NumberText.h"

namespace flickerscribe {
namespace {

static_assert(kContactAddress.size() == 24);
static_assert([] {
    for (std::string_view line : kScriptBanner) {
        if (line.size() != 30 || !line.ends_with("\\\\")) return false;
    }
    return true;
}());
static_assert(kScriptBanner[5].substr(3, 24) == kContactAddress);

constexpr std::string_view kNamePrefix = "set name \"";
constexpr std::string_view kWaitPrefix = "wait ";

// Appends the name command of `text` to `out`.
void PutNameCommand(std::string& out, std::string_view text) {
    out += kNamePrefix;
    if (text.empty() || text.front() == ' ') out += "^7";
    out += text.empty() ? std::string_view(" ") : text;
    out += '"';
}

// The value that goes behind "wait": `time` itself while it lies in range.
std::string_view WaitValue(std::string_view time, const ScriptReport& report) {
    // NumberValue is the number test itself: it has a value exactly when
    // IsNumberText holds.
    const auto value = NumberValue(time);
    if (!value) {
        if (report) report(NoNumberMessage(time));
        return "15";
    }
    const double whole = std::floor(*value);
    if (whole <= 0) return "5";
    if (whole >= 100) return "99";
    return time;
}

void PutWaitCommand(std::string& out, std::string_view time, const ScriptReport& report) {
    out += kWaitPrefix;
    out += WaitValue(time, report);
}

}  // namespace

std::string NoNumberMessage(std::string_view time) {
    std::string message = "no number _";
    message += time;
    message += '_';
    return message;
}

void AppendScriptLine(std::string& script, std::string_view line) {
    script += kScriptLineEnd;
    script += line;
}

std::string NameCommand(std::string_view text) {
    std::string out;
    PutNameCommand(out, text);
    return out;
}

std::string WaitCommand(std::string_view time, const ScriptReport& report) {
    std::string out;
    PutWaitCommand(out, time, report);
    return out;
}

std::string BuildScriptText(const AnimationScript& script, const ScriptReport& report) {
    const int count = script.Count();

    // One pass to size the text, so that the build never reallocates.
    std::size_t size = 0;
    for (std::string_view line : kScriptBanner) size += kScriptLineEnd.size() + line.size();
    constexpr std::size_t kPerLine = 2 * kScriptLineEnd.size() + kNamePrefix.size() + 3 + kWaitPrefix.size();
    for (int i = 1; i <= count; ++i) {
        const AnimationLine& line = script.LineAt(i);
        size += kPerLine + line.Text.size() + std::max<std::size_t>(line.Time.size(), 2);
    }

    std::string text;
    text.reserve(size);
    for (std::string_view line : kScriptBanner) AppendScriptLine(text, line);
    for (int i = 1; i <= count; ++i) {
        const AnimationLine& line = script.LineAt(i);
        text += kScriptLineEnd;
        PutNameCommand(text, line.Text);
        text += kScriptLineEnd;
        PutWaitCommand(text, line.Time, report);
    }
    return text;
}

}  // namespace flickerscribe
