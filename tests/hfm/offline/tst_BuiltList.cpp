#include "ListText.h"

#include "listbuilder/ListSyntax.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace hfm::offline;

namespace {

/// A generated script with its placeholders filled in as its comments tell: the number of lists,
/// the list's own number, and the array's element, taken out of the comment that it stands behind,
/// with the list's name in it.
QByteArray filledIn(const QString &generated, const QString &listName)
{
    QStringList lines = generated.split(u"\r\n"_s);
    for (QString &line : lines) {
        if (!line.trimmed().startsWith(u"'#"_s))
            continue;
        const QString element = line.section(u'\t', -1);
        line = element.contains(u"(#)"_s) ? element + u" = \""_s + listName + u'"' : QString();
    }
    QString script = lines.join(u"\r\n"_s);
    script.replace(u"(#)"_s, u"(1)"_s);
    script.replace(u"Case #"_s, u"Case 1"_s);
    return script.toLatin1();
}

} // namespace

/// A list that the list builder made is the list that the client makes of it.
class tst_BuiltList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aGeneratedScriptIsTheListThatItWasMadeFrom_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QStringList>("entries");
        QTest::newRow("accounts") << int(DimensionKind::Account) << QStringList({u"SALES"_s});
        QTest::newRow("entities") << int(DimensionKind::Entity)
                                  << QStringList({u"E3"_s, u"GROUP"_s, u"E1"_s});
        QTest::newRow("one twice")
            << int(DimensionKind::Account) << QStringList({u"COST"_s, u"PL"_s, u"COST"_s});
        QTest::newRow("a custom dimension")
            << int(DimensionKind::Custom1) << QStringList({u"OPE"_s, u"[None]"_s, u"CLO"_s});
        QTest::newRow("nothing") << int(DimensionKind::Scenario) << QStringList();
    }

    void aGeneratedScriptIsTheListThatItWasMadeFrom()
    {
        QFETCH(int, kind);
        QFETCH(QStringList, entries);
        const auto dimension = DimensionKind(kind);
        const QString generated = GenerateListSyntax(dimensionName(dimension).toString(), entries);
        ListText lists(filledIn(generated, u"Sales"_s));
        QCOMPARE(lists.warnings(), QStringList());
        QCOMPARE(lists.names(dimension), QStringList{u"1 Sales"_s});
        QCOMPARE(lists.members(dimension, u"Sales"_s), entries.join(u' '));
    }

    void aScriptWithItsPlaceholdersIsNoMemberListFileYet()
    {
        ListText lists(GenerateListSyntax(u"Account"_s, {u"SALES"_s}).toLatin1());
        QCOMPARE(lists.names(DimensionKind::Account), QStringList());
        QCOMPARE(lists.warnings(), QStringList{u"4: Invalid character '#' (column 20). The file's "
                                               "lists are left out."_s});
    }
};

QTEST_APPLESS_MAIN(tst_BuiltList)
#include "tst_BuiltList.moc"
