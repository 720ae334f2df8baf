#include "ui/main/KeptAnimations.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <atomic>
#include <cerrno>

#include "colour/ColouredText.h"
#include "document/AnimationFile.h"
#include "ui/common/FileCommands.h"
#include "ui/common/TextConv.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {
namespace {

// Earlier versions kept one file for every run under this name.
const QString kOldKeptFile = u"last-animation.fsq"_s;

// A name no other run takes: the start time, the process and, for a second
// window of one process, a count.
QString newFileName() {
    static std::atomic<int> made{0};
    return u"kept-%1-%2-%3.fsq"_s.arg(QDateTime::currentDateTime().toString(u"yyyyMMdd-HHmmss-zzz"_s))
        .arg(QCoreApplication::applicationPid())
        .arg(++made);
}

}  // namespace

KeptAnimations::KeptAnimations(QString folder) : folder_(std::move(folder)) {
    if (enabled()) ownFile_ = QDir(folder_).filePath(newFileName());
}

QStringList KeptAnimations::files() const {
    if (!enabled()) return {};
    const QFileInfoList found =
        QDir(folder_).entryInfoList({u"kept-*.fsq"_s, kOldKeptFile}, QDir::Files, QDir::Time);
    QStringList paths;
    for (const QFileInfo& file : found) paths << file.filePath();
    return paths;
}

std::optional<SaveError> KeptAnimations::keep(const AnimationScript& script) const {
    if (!enabled()) return std::nullopt;
    if (!QDir().mkpath(folder_)) return SaveError{EACCES, "the folder can't be made"};
    if (auto error = SaveAnimationFile(nativePath(ownFile_), script)) return error;
    const QStringList kept = files();
    for (qsizetype i = kMaxRuns; i < kept.size(); ++i) {
        if (kept[i] != ownFile_) QFile::remove(kept[i]);
    }
    return std::nullopt;
}

std::vector<KeptAnimations::Entry> KeptAnimations::entries() const {
    std::vector<Entry> entries;
    for (const QString& path : files()) {
        AnimationScript script;
        if (LoadWholeAnimationFile(nativePath(path), script) != LoadStatus::Loaded) continue;
        Entry entry{path, QFileInfo(path).lastModified(), script.Count(), {}};
        if (script.Count() > 0) {
            std::string plain;
            for (const ColouredRun& run : RenderRuns(script.LineAt(1).Text)) plain += run.text;
            entry.firstLine = toQString(plain);
        }
        entries.push_back(std::move(entry));
    }
    return entries;
}

QString entryCaption(const KeptAnimations::Entry& entry) {
    constexpr qsizetype kShown = 40;
    QString start = entry.firstLine.left(kShown);
    if (entry.firstLine.size() > kShown) start += u"..."_s;
    const QString lines = entry.lines == 1 ? u"1 line"_s : u"%1 lines"_s.arg(entry.lines);
    // An ampersand in a menu caption marks a shortcut key unless doubled.
    start.replace(u'&', u"&&"_s);
    return u"%1 - %2 - %3"_s.arg(QLocale().toString(entry.kept, QLocale::ShortFormat), lines, start);
}

}  // namespace flickerscribe::ui
