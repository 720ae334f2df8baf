#include "ui/widgets/SingleLine.h"

#include <QLineEdit>
#include <QValidator>
#include <limits>

namespace flickerscribe::ui {
namespace {

// Rewrites what the box is about to hold; QLineEdit takes the rewritten text.
class OneLineValidator : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString& input, int& position) const override {
        const qsizetype before = input.size();
        input = onOneLine(std::move(input));
        // A CR LF became one blank: the caret moves back with the text.
        position = static_cast<int>(std::max<qsizetype>(0, position - (before - input.size())));
        return Acceptable;
    }
};

bool isBreak(QChar c) {
    return c == u'\r' || c == u'\n' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

}  // namespace

QString onOneLine(QString text) {
    if (!std::any_of(text.cbegin(), text.cend(), isBreak)) return text;
    text.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    for (QChar& c : text) {
        if (isBreak(c)) c = u' ';
    }
    return text;
}

void keepOnOneLine(QLineEdit* box) {
    box->setMaxLength(std::numeric_limits<int>::max());
    box->setValidator(new OneLineValidator(box));
}

}  // namespace flickerscribe::ui
