#include "listbuilder/ListSyntax.h"

#include "runtime/Counter16.h"

#include <QStringBuilder>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Lines with CR LF between them.
class Script
{
public:
    /// A line that begins with so many TABs.
    void add(int tabs, const QString &content)
    {
        if (!mText.isNull())
            mText += "\r\n"_L1;
        mText += QString(tabs, u'\t') % content;
    }
    void addEmpty() { mText += "\r\n"_L1; }

    const QString &text() const { return mText; }

private:
    QString mText;
};

void addListNames(Script &script, const QString &dimensionName)
{
    const QString array = u'a' % dimensionName % "Lists"_L1;
    script.add(0, u"Sub EnumMemberLists()"_s);
    script.addEmpty();
    script.add(1, u"'# is a placeholder for you for when you go to copy this text into your list "
                  "file, replace that with the new number of total lists for that dimension"_s);
    script.add(1, "Dim "_L1 % array % "(#)"_L1);
    script.addEmpty();
    script.add(1, u"Select Case HS.Dimension"_s);
    script.add(2, "Case \""_L1 % dimensionName % u'"');
    // The array's element is a part of the comment, for the user to take out of it.
    script.add(3, "'# is a placeholder for the extact number of the specific list when you copy "
                  "the syntax into your list file\t\t\t"_L1 %
                      array % "(#)"_L1);
    script.add(3, "HS.SetMemberLists "_L1 % array);
    script.add(1, u"End Select"_s);
    script.addEmpty();
    script.add(0, u"End Sub"_s);
}

void addMembers(Script &script, const QString &dimensionName, const QStringList &entries)
{
    script.add(0, u"Sub EnumMembersInList()"_s);
    script.addEmpty();
    script.add(1, u"Select Case HS.Dimension"_s);
    script.add(2, "Case \""_L1 % dimensionName % u'"');
    script.add(3, u"Select Case HS.MemberListID"_s);
    script.add(4, u"'# is a placeholder for the exact number of the list when you copy this "
                  "syntax into your list file"_s);
    script.add(4, u"Case #"_s);
    const qint16 count = Counter16(entries.size()).value();
    for (qint16 i = 0; i < count; ++i)
        script.add(5, "HS.AddMemberToList \""_L1 % entries[i] % u'"');
    script.add(3, u"End Select"_s);
    script.add(1, u"End Select"_s);
    script.addEmpty();
    script.add(0, u"End Sub"_s);
}

} // namespace

QString GenerateListSyntax(const QString &dimensionName, const QStringList &entries)
{
    Script script;
    addListNames(script, dimensionName);
    script.addEmpty();
    addMembers(script, dimensionName, entries);
    return script.text();
}

QString listSyntaxMessage(const QString &dimensionName, const QString &listName, qint16 count)
{
    return dimensionName % " List '"_L1 % listName %
           "' successfully written.  The list contains "_L1 % QString::number(count) %
           " members.\r\r"_L1 %
           "This syntax will need to be saved or copied directly from here to your existing list "
           "file, then uploaded to HFM to see any changes reflected in your application."_L1;
}
