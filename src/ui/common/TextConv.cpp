#include "ui/common/TextConv.h"

#include "document/Cp1252.h"

namespace flickerscribe::ui {

QString toQString(std::string_view cp1252) {
    QString out;
    out.resize(static_cast<qsizetype>(cp1252.size()));
    QChar* dst = out.data();
    for (char c : cp1252)
        *dst++ = QChar(static_cast<char16_t>(Cp1252ToUnicode(static_cast<unsigned char>(c))));
    return out;
}

std::string fromQString(const QString& text) {
    std::string out;
    out.reserve(static_cast<std::size_t>(text.size()));
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            ++i;  // a character outside the basic plane: no Windows-1252 form
            out += '?';
            continue;
        }
        out += UnicodeToCp1252(c.unicode());
    }
    return out;
}

}  // namespace flickerscribe::ui
