#include "appinfo/MemberListExport.h"

#include "runtime/Counter16.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint32 column = 1;
constexpr QChar textMark = u'\'';

} // namespace

void MemberListExport::write(Worksheet &sheet, const QString &heading, const QString &topMember,
                             const QStringList &members)
{
    Counter16 row(1);
    sheet.setCell(row.value(), column, textMark + heading + u" (** denotes parent member)"_s);
    if (!topMember.isEmpty()) {
        ++row;
        sheet.setCell(row.value(), column,
                      textMark + u"Top Member Set To:  "_s + topMember.toUpper());
    }
    ++row; // stays empty
    for (const QString &member : members) {
        ++row;
        sheet.setCell(row.value(), column, textMark + member);
    }
}
