#include "hfm/offline/XmlRecord.h"

#include "hfm/offline/Syntax.h"

namespace hfm::offline {

namespace {

bool isNamed(QStringView element, QLatin1StringView name)
{
    return element.compare(name, Qt::CaseInsensitive) == 0;
}

QByteArray inOneLine(QStringView text)
{
    QByteArray line = text.trimmed().toUtf8();
    line.replace("\r\n", " ");
    for (char &c : line) {
        if (c == '\n' || c == '\r')
            c = ' ';
    }
    return line;
}

void skipElement(XmlReader &reader)
{
    for (qint64 depth = 1; depth > 0;) {
        const auto token = reader.next();
        depth += token == QXmlStreamReader::StartElement;
        depth -= token == QXmlStreamReader::EndElement;
    }
}

/// The text of the element that the reader stands at, which it reads to its end.
QByteArray textOf(XmlReader &reader)
{
    QString text;
    while (true) {
        switch (reader.next()) {
        case QXmlStreamReader::Characters:
            text += reader.token().text();
            break;
        case QXmlStreamReader::StartElement:
            skipElement(reader);
            break;
        case QXmlStreamReader::EndElement:
            return inOneLine(text);
        default:
            break;
        }
    }
}

/// Reads one element of a record.
void readPart(XmlReader &reader, XmlRecord &record)
{
    const QStringView name = reader.token().name();
    if (isNamed(name, QLatin1StringView("LABEL"))) {
        record.label = textOf(reader);
    } else if (isNamed(name, QLatin1StringView("AT"))) {
        QByteArray attribute = xmlAttribute(reader, QLatin1StringView("Name"));
        record.attributes.push_back({std::move(attribute), textOf(reader)});
    } else if (isNamed(name, QLatin1StringView("DESCRIPTION"))) {
        QByteArray language = xmlAttribute(reader, QLatin1StringView("Language"));
        record.descriptions.push_back({std::move(language), textOf(reader)});
    } else if (isNamed(name, QLatin1StringView("DEFAULTPARENT"))) {
        record.defaultParent = textOf(reader);
    } else if (isNamed(name, QLatin1StringView("PARENT"))) {
        record.parent = textOf(reader);
    } else if (isNamed(name, QLatin1StringView("CHILD"))) {
        record.child = textOf(reader);
    } else {
        skipElement(reader);
    }
}

} // namespace

std::optional<XmlRecordKind> xmlRecordNamed(QStringView element)
{
    if (isNamed(element, QLatin1StringView("MEMBER")))
        return XmlRecordKind::Member;
    if (isNamed(element, QLatin1StringView("NODE")))
        return XmlRecordKind::Node;
    if (isNamed(element, QLatin1StringView("MISCENTRY")))
        return XmlRecordKind::Entry;
    return std::nullopt;
}

void XmlRecord::read(XmlReader &reader, XmlRecordKind recordKind)
{
    *this = {};
    kind = recordKind;
    line = reader.line();
    while (true) {
        const auto token = reader.next();
        if (token == QXmlStreamReader::StartElement)
            readPart(reader, *this);
        else if (token == QXmlStreamReader::EndElement)
            return;
    }
}

QByteArrayView XmlRecord::attribute(QByteArrayView name) const
{
    for (const Named &one : attributes) {
        if (sameWord(one.name, name))
            return one.value;
    }
    return {};
}

QByteArray xmlAttribute(const XmlReader &reader, QLatin1StringView name)
{
    const QXmlStreamAttributes attributes = reader.token().attributes();
    for (const QXmlStreamAttribute &attribute : attributes) {
        if (isNamed(attribute.name(), name))
            return inOneLine(attribute.value());
    }
    return {};
}

} // namespace hfm::offline
