#include "hfm/offline/script/NumberText.h"

#include <QString>

#include <cmath>

namespace hfm::offline::script {

namespace {

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

/// Reads over digits and adds them to `plain`; how many there were.
qsizetype takeDigits(QStringView text, qsizetype &at, QByteArray &plain, bool withGroups)
{
    const qsizetype before = plain.size();
    for (; at < text.size(); ++at) {
        if (isDigit(text[at]))
            plain.append(char(text[at].unicode()));
        else if (!withGroups || text[at] != u',' || plain.size() == before)
            break;
    }
    return plain.size() - before;
}

/// A sign and digits behind an E; false where there is an E without them.
bool takeExponent(QStringView text, qsizetype &at, QByteArray &plain)
{
    if (at == text.size() || (text[at] != u'e' && text[at] != u'E'))
        return true;
    plain.append('e');
    if (++at < text.size() && (text[at] == u'+' || text[at] == u'-'))
        plain.append(char(text[at++].unicode()));
    return takeDigits(text, at, plain, false) > 0;
}

} // namespace

std::optional<double> numberIn(QStringView text)
{
    text = text.trimmed();
    QByteArray plain;
    qsizetype at = 0;
    if (text.startsWith(u"&H", Qt::CaseInsensitive)) {
        const auto value = basedNumber(text.sliced(2), 16);
        return value ? std::optional<double>(*value) : std::nullopt;
    }
    if (at < text.size() && (text[at] == u'+' || text[at] == u'-'))
        plain.append(char(text[at++].unicode()));
    qsizetype digits = takeDigits(text, at, plain, true);
    if (at < text.size() && text[at] == u'.') {
        ++at;
        plain.append('.');
        digits += takeDigits(text, at, plain, false);
    }
    if (digits == 0 || !takeExponent(text, at, plain) || at < text.size())
        return std::nullopt;
    bool isNumber = false;
    const double value = plain.toDouble(&isNumber);
    return isNumber && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::optional<qint32> basedNumber(QStringView digits, int base)
{
    bool isNumber = false;
    const quint64 value = digits.toULongLong(&isNumber, base);
    const bool hasSign = !digits.isEmpty() && !digits[0].isLetterOrNumber();
    if (!isNumber || hasSign || value > 0xFFFFFFFFU)
        return std::nullopt;
    return value <= 0xFFFFU ? qint32(qint16(value)) : qint32(quint32(value));
}

QString numberText(double number)
{
    if (number == 0)
        return QStringLiteral("0");
    return QString::number(number, 'g', 15).toUpper();
}

} // namespace hfm::offline::script
