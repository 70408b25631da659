#include "listbuilder/ListSyntax.h"
#include "support/Errors.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// The script for Account and the entries "NET SALES" and "4000", to the byte.
const char accountScript[] =
    "Sub EnumMemberLists()\r\n"
    "\r\n"
    "\t'# is a placeholder for you for when you go to copy this text into your list file, replace "
    "that with the new number of total lists for that dimension\r\n"
    "\tDim aAccountLists(#)\r\n"
    "\r\n"
    "\tSelect Case HS.Dimension\r\n"
    "\t\tCase \"Account\"\r\n"
    "\t\t\t'# is a placeholder for the extact number of the specific list when you copy the syntax "
    "into your list file\t\t\taAccountLists(#)\r\n"
    "\t\t\tHS.SetMemberLists aAccountLists\r\n"
    "\tEnd Select\r\n"
    "\r\n"
    "End Sub\r\n"
    "\r\n"
    "Sub EnumMembersInList()\r\n"
    "\r\n"
    "\tSelect Case HS.Dimension\r\n"
    "\t\tCase \"Account\"\r\n"
    "\t\t\tSelect Case HS.MemberListID\r\n"
    "\t\t\t\t'# is a placeholder for the exact number of the list when you copy this syntax into "
    "your list file\r\n"
    "\t\t\t\tCase #\r\n"
    "\t\t\t\t\tHS.AddMemberToList \"NET SALES\"\r\n"
    "\t\t\t\t\tHS.AddMemberToList \"4000\"\r\n"
    "\t\t\tEnd Select\r\n"
    "\tEnd Select\r\n"
    "\r\n"
    "End Sub";

QStringList linesOf(const QString &script)
{
    return script.split(u"\r\n"_s);
}

QString entryLine(const QString &entry)
{
    return u"\t\t\t\t\tHS.AddMemberToList \""_s + entry + u'"';
}

} // namespace

class tst_ListSyntax : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theScriptIsThatOneToTheByte()
    {
        QCOMPARE(GenerateListSyntax(u"Account"_s, {u"NET SALES"_s, u"4000"_s}).toLatin1(),
                 QByteArray(accountScript));
    }

    void eachLineBeginsWithItsTabs()
    {
        const QList<int> tabs = {0, 0, 1, 1, 0, 1, 2, 3, 3, 1, 0, 0, 0,
                                 0, 0, 1, 2, 3, 4, 4, 5, 5, 3, 1, 0, 0};
        const QStringList lines = linesOf(GenerateListSyntax(u"Account"_s, {u"A"_s, u"B"_s}));
        QCOMPARE(lines.size(), tabs.size());
        for (qsizetype i = 0; i < lines.size(); ++i) {
            QVERIFY(lines[i].startsWith(QString(tabs[i], u'\t')));
            QVERIFY(!lines[i].mid(tabs[i]).startsWith(u'\t'));
            QVERIFY(!lines[i].startsWith(u' '));
        }
    }

    void withNoEntriesTheCaseLineIsFollowedByTheEndSelectLineWithThreeTabs()
    {
        const QStringList lines = linesOf(GenerateListSyntax(u"Account"_s, {}));
        QCOMPARE(lines.size(), 24);
        QCOMPARE(lines[19], u"\t\t\t\tCase #"_s);
        QCOMPARE(lines[20], u"\t\t\tEnd Select"_s);
        QCOMPARE(lines[21], u"\tEnd Select"_s);
    }

    void entriesFollowTheirOrderAndRepeatedOnesGiveRepeatedLines()
    {
        const QStringList lines =
            linesOf(GenerateListSyntax(u"Account"_s, {u"A"_s, u"B"_s, u"A"_s}));
        QCOMPARE(lines.mid(20, 3),
                 QStringList({entryLine(u"A"_s), entryLine(u"B"_s), entryLine(u"A"_s)}));
    }

    void anEntryIsWrittenAsItStands_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::newRow("a double quote") << u"say \"hi\""_s;
        QTest::newRow("blanks around") << u"  A  "_s;
        QTest::newRow("empty") << QString();
        QTest::newRow("an apostrophe") << u"it's"_s;
        QTest::newRow("percent and digit") << u"50%1"_s;
        QTest::newRow("a placeholder") << u"#"_s;
        QTest::newRow("a no-break blank") << u"A\u00A0B"_s;
        QTest::newRow("letters of any kind") << u"Übergang 中"_s;
    }

    void anEntryIsWrittenAsItStands()
    {
        QFETCH(QString, entry);
        QCOMPARE(linesOf(GenerateListSyntax(u"Account"_s, {entry}))[20], entryLine(entry));
    }

    void theDimensionStandsInFiveLinesAsItIsSpelled()
    {
        const QStringList lines = linesOf(GenerateListSyntax(u"Custom1"_s, {u"A"_s}));
        QCOMPARE(lines[3], u"\tDim aCustom1Lists(#)"_s);
        QCOMPARE(lines[6], u"\t\tCase \"Custom1\""_s);
        QVERIFY(lines[7].endsWith(u"list file\t\t\taCustom1Lists(#)"_s));
        QCOMPARE(lines[8], u"\t\t\tHS.SetMemberLists aCustom1Lists"_s);
        QCOMPARE(lines[16], lines[6]);
        QCOMPARE(lines.join(u'\n').count(u"Custom1"_s), 5);
    }

    void aDimensionsNameIsTextAndNothingElse()
    {
        const QStringList lines = linesOf(GenerateListSyntax(u"%1 x"_s, {}));
        QCOMPARE(lines[3], u"\tDim a%1 xLists(#)"_s);
        QCOMPARE(lines[6], u"\t\tCase \"%1 x\""_s);
    }

    void theFirstPlaceholderSpellsExtactAndTheSecondExact()
    {
        const QStringList lines = linesOf(GenerateListSyntax(u"Account"_s, {}));
        QVERIFY(lines[7].contains(u" extact number "_s));
        QVERIFY(lines[18].contains(u" exact number "_s));
    }

    void theArrayElementIsAPartOfTheComment()
    {
        const QString line = linesOf(GenerateListSyntax(u"Account"_s, {}))[7];
        QVERIFY(line.startsWith(u"\t\t\t'#"_s));
        QVERIFY(line.endsWith(u"\t\t\taAccountLists(#)"_s));
    }

    void theLastCharacterIsTheBOfEndSub()
    {
        QVERIFY(GenerateListSyntax(u"Account"_s, {u"A"_s}).endsWith(u"\r\nEnd Sub"_s));
    }

    void everyLineEndIsCrLf()
    {
        QString script = GenerateListSyntax(u"Account"_s, {u"A"_s});
        script.remove(u"\r\n"_s);
        QVERIFY(!script.contains(u'\r'));
        QVERIFY(!script.contains(u'\n'));
    }

    void twoGenerationsGiveTheSameText()
    {
        const QStringList entries = {u"A"_s, u"B"_s};
        QCOMPARE(GenerateListSyntax(u"Account"_s, entries),
                 GenerateListSyntax(u"Account"_s, entries));
    }

    void moreThan32767EntriesOverflow()
    {
        const QString script = GenerateListSyntax(u"Account"_s, QStringList(32'767, u"A"_s));
        QCOMPARE(script.count(u"HS.AddMemberToList"_s), 32'767);
        const auto error =
            errorOf([] { GenerateListSyntax(u"Account"_s, QStringList(32'768, u"A"_s)); });
        QVERIFY(error);
        QCOMPARE(error->number(), Overflow);
    }

    // The message.

    void theMessageNamesTheListAndItsNumberOfMembers()
    {
        QCOMPARE(
            listSyntaxMessage(u"Account"_s, u"Sales"_s, 3),
            u"Account List 'Sales' successfully written.  The list contains 3 members.\r\rThis "
            "syntax will need to be saved or copied directly from here to your existing list "
            "file, then uploaded to HFM to see any changes reflected in your application."_s);
    }

    void withNoEntriesTheMessageCounts0Members()
    {
        QVERIFY(listSyntaxMessage(u"Account"_s, u"Sales"_s, 0)
                    .startsWith(u"Account List 'Sales' successfully written.  The list contains 0 "
                                "members.\r\r"_s));
    }

    void anEmptyNameStandsAsTwoQuotes()
    {
        QVERIFY(listSyntaxMessage(u"Account"_s, QString(), 2)
                    .startsWith(u"Account List '' successfully written.  The list contains 2 "
                                "members.\r\r"_s));
    }

    void aNameIsTextAndNothingElse()
    {
        QVERIFY(listSyntaxMessage(u"%1"_s, u"%2 %3"_s, 32'767)
                    .startsWith(u"%1 List '%2 %3' successfully written.  The list contains 32767 "
                                "members.\r\r"_s));
    }

    void theMessageHasNoLineFeeds()
    {
        const QString message = listSyntaxMessage(u"Account"_s, u"Sales"_s, 3);
        QCOMPARE(message.count(u'\r'), 2);
        QVERIFY(!message.contains(u'\n'));
    }
};

QTEST_APPLESS_MAIN(tst_ListSyntax)
#include "tst_ListSyntax.moc"
