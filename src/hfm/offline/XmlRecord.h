#pragma once

#include "hfm/offline/XmlReader.h"

#include <QByteArray>

#include <optional>
#include <vector>

namespace hfm::offline {

/// The elements that hold a record of metadata.
enum class XmlRecordKind { Member, Node, Entry };

/// Nothing for any other element.
std::optional<XmlRecordKind> xmlRecordNamed(QStringView element);

/// A MEMBER, a NODE or a MISCENTRY, taken apart. All text is UTF-8 in one line, without the blanks
/// around it. Elements that are not known are passed over with all that they hold.
struct XmlRecord
{
    struct Named
    {
        QByteArray name;
        QByteArray value;
    };

    XmlRecordKind kind = XmlRecordKind::Member;
    qint64 line = 0;
    QByteArray label;
    QByteArray parent;
    QByteArray child;
    std::optional<QByteArray> defaultParent;
    std::vector<Named> attributes;   ///< the AT elements
    std::vector<Named> descriptions; ///< by language

    /// Reads the element that the reader stands at, up to its end.
    void read(XmlReader &reader, XmlRecordKind recordKind);
    /// The text of that attribute, in any letter case; empty where there is none.
    QByteArrayView attribute(QByteArrayView name) const;
};

/// The value of an attribute of the start tag that the reader stands at, its name in any letter
/// case; empty where there is none.
QByteArray xmlAttribute(const XmlReader &reader, QLatin1StringView name);

/// What separates the fields where a record becomes a line: no XML text can hold it.
inline constexpr char xmlDelimiter = '\x1F';

} // namespace hfm::offline
