#include "ui/widgets/RichPane.h"

#include <QBrush>
#include <QColor>
#include <QHash>
#include <QTextBlock>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <algorithm>

#include "ui/common/TextConv.h"
#include "ui/widgets/PaneStyle.h"

namespace flickerscribe::ui {

namespace {

// A character that was never painted has no brush of its own and shows in the
// pane's default colour, black.
Colour colourOf(const QTextCharFormat& format) {
    if (!format.hasProperty(QTextFormat::ForegroundBrush)) return kBlack;
    const QBrush brush = format.foreground();
    if (brush.style() == Qt::NoBrush) return kBlack;
    const QColor c = brush.color();
    return Rgb(static_cast<unsigned>(c.red()), static_cast<unsigned>(c.green()),
               static_cast<unsigned>(c.blue()));
}

QTextCharFormat formatOf(Colour colour) {
    QTextCharFormat format;
    format.setForeground(toQColor(colour));
    return format;
}

// Number of pane characters: the document always ends with one paragraph
// separator that is no character of the pane.
int textLength(const QTextDocument& doc) {
    return std::max(0, doc.characterCount() - 1);
}

// The colour of the character at `position`. A paragraph break has no colour
// of its own in the pane: it takes the colour of the last character in front
// of it, so that it never makes a colour change by itself.
Colour colourAt(const QTextDocument& doc, int position) {
    QTextBlock block = doc.findBlock(position);
    if (position == block.position() + block.length() - 1) {  // the break behind this block
        while (block.isValid() && block.length() <= 1) block = block.previous();
        if (!block.isValid()) return kBlack;
        position = block.position() + block.length() - 2;
    }
    QTextCursor probe(const_cast<QTextDocument*>(&doc));
    probe.setPosition(position + 1);
    return colourOf(probe.charFormat());
}

}  // namespace

RichPane::RichPane(QTextEdit* edit) : edit_(edit) {}

std::string RichPane::Text() const {
    QString text = edit_->document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    text.replace(QChar::LineSeparator, u'\n');
    return fromQString(text);
}

void RichPane::SetText(std::string_view text) {
    SetRuns({ColouredRun{std::string(text), kBlack}});
    SetSelStart(0);
}

int RichPane::SelStart() const {
    return edit_->textCursor().selectionStart();
}

void RichPane::SetSelStart(int position) {
    pending_.reset();
    QTextCursor cursor = edit_->textCursor();
    cursor.setPosition(std::clamp(position, 0, textLength(*edit_->document())));
    edit_->setTextCursor(cursor);
}

int RichPane::SelLength() const {
    const QTextCursor cursor = edit_->textCursor();
    return cursor.selectionEnd() - cursor.selectionStart();
}

void RichPane::SetSelLength(int length) {
    pending_.reset();
    QTextCursor cursor = edit_->textCursor();
    const int start = cursor.selectionStart();
    const int end = std::clamp(start + std::max(0, length), start, textLength(*edit_->document()));
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    edit_->setTextCursor(cursor);
}

Colour RichPane::SelColour() const {
    const QTextCursor cursor = edit_->textCursor();
    if (cursor.hasSelection()) return colourAt(*edit_->document(), cursor.selectionStart());
    // The widget forgets a chosen colour when the caret moves; so do we.
    if (pending_ && cursor.position() == pendingAt_ && colourOf(cursor.charFormat()) == *pending_)
        return *pending_;
    if (cursor.position() > 0) return colourAt(*edit_->document(), cursor.position() - 1);
    return kBlack;
}

void RichPane::SetSelColour(Colour colour) {
    QTextCursor cursor = edit_->textCursor();
    if (!cursor.hasSelection()) {
        pending_ = colour;
        pendingAt_ = cursor.position();
    }
    // With nothing selected this is the colour the widget types in next.
    cursor.mergeCharFormat(formatOf(colour));
    edit_->setTextCursor(cursor);
}

void RichPane::SetSelText(std::string_view text) {
    QTextCursor cursor = edit_->textCursor();
    if (text.empty() && !cursor.hasSelection()) return;
    const Colour colour = SelColour();
    pending_.reset();
    cursor.insertText(toQString(text), formatOf(colour));
    edit_->setTextCursor(cursor);
}

bool RichPane::Locked() const {
    return edit_->isReadOnly();
}

void RichPane::SetLocked(bool locked) {
    edit_->setReadOnly(locked);
}

void RichPane::SetRuns(const std::vector<ColouredRun>& runs) {
    QTextDocument* doc = edit_->document();
    // A replacement of the whole content starts a new history: kept, the old
    // one would grow with every frame that playback draws.
    const bool undo = doc->isUndoRedoEnabled();
    doc->setUndoRedoEnabled(false);
    QTextCursor cursor(doc);
    // One edit block: the widget hears of the whole replacement once, and lays
    // the text out once.
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.removeSelectedText();
    cursor.setBlockCharFormat(QTextCharFormat());
    QHash<Colour, QTextCharFormat> formats;
    for (const ColouredRun& run : runs) {
        if (run.text.empty()) continue;
        auto it = formats.find(run.colour);
        if (it == formats.end()) it = formats.insert(run.colour, formatOf(run.colour));
        cursor.insertText(toQString(run.text), *it);
    }
    cursor.endEditBlock();
    doc->setUndoRedoEnabled(undo);
    pending_.reset();
    // The caret ends behind the last character, where the inserting cursor
    // stands, as after a render character by character, with no colour
    // pending for the next insertion.
    edit_->setTextCursor(cursor);
}

std::vector<ColouredRun> RichPane::Runs() const {
    std::vector<ColouredRun> runs;
    const QTextDocument* doc = edit_->document();
    // Colours by format index: a long text of many runs shares a few formats.
    QHash<int, Colour> colours;
    auto add = [&runs](std::string text, Colour colour) {
        if (text.empty()) return;
        if (!runs.empty() && runs.back().colour == colour) {
            runs.back().text += text;
        } else {
            runs.push_back(ColouredRun{std::move(text), colour});
        }
    };
    for (QTextBlock block = doc->begin(); block.isValid(); block = block.next()) {
        if (block != doc->begin()) add("\n", runs.empty() ? kBlack : runs.back().colour);
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            if (!fragment.isValid()) continue;
            const int index = fragment.charFormatIndex();
            auto found = colours.constFind(index);
            if (found == colours.constEnd()) found = colours.insert(index, colourOf(fragment.charFormat()));
            // A soft line break (pasted rich text brings them) is a break too.
            QString text = fragment.text();
            text.replace(QChar::LineSeparator, u'\n');
            add(fromQString(text), *found);
        }
    }
    return runs;
}

}  // namespace flickerscribe::ui
