#pragma once

#include <QDateTime>
#include <QString>
#include <optional>
#include <vector>

#include "document/SafeWrite.h"

namespace flickerscribe {
class AnimationScript;
}

namespace flickerscribe::ui {

// The animations that runs of the program keep for their users in the data
// folder, one file for each run that changed something, so that a crash, a
// power cut or a second program never costs more than the last half minute of
// work. The folder holds the files of the last kMaxRuns such runs.
class KeptAnimations {
public:
    static constexpr int kMaxRuns = 10;

    // One kept animation that can be read whole.
    struct Entry {
        QString path;
        QDateTime kept;  // when it was written last
        int lines = 0;
        QString firstLine;  // its text without colour codes
    };

    // Nothing is kept where `folder` is empty.
    explicit KeptAnimations(QString folder);

    bool enabled() const { return !folder_.isEmpty(); }
    // This run's file; it exists once something was kept.
    const QString& ownFile() const { return ownFile_; }

    // Writes this run's file by the safe save, then removes the files of all
    // but the last kMaxRuns runs. nullopt when it was written.
    std::optional<SaveError> keep(const AnimationScript& script) const;

    // Every kept file there is, this run's too, newest first; quick, as
    // nothing is read.
    QStringList files() const;
    // The kept animations that can be read whole, newest first. A file cut
    // short or of other bytes is left out.
    std::vector<Entry> entries() const;

private:
    QString folder_;
    QString ownFile_;
};

// How a kept animation is offered in the menu: when it was kept, its line
// count and the start of its first line.
QString entryCaption(const KeptAnimations::Entry& entry);

}  // namespace flickerscribe::ui
