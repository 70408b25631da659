#include "ProcessMemory.h"
#include "Reading.h"

#include <QStringEncoder>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray memberA = "<MEMBER><LABEL>A</LABEL><DEFAULTPARENT>#root</DEFAULTPARENT></MEMBER>";
const QByteArray nodeA = "<NODE><PARENT></PARENT><CHILD>A</CHILD></NODE>";
const QByteArray nodeAB = "<NODE><PARENT>A</PARENT><CHILD>B</CHILD></NODE>";
const QByteArray memberB = "<MEMBER><LABEL>B</LABEL><DEFAULTPARENT>A</DEFAULTPARENT></MEMBER>";
const QByteArray content = memberA + memberB + nodeA + nodeAB;

QByteArray inEntity(const QByteArray &elements)
{
    return "<DIMENSION Name=\"Entity\">" + elements + "</DIMENSION>";
}

void compareRefusal(const Reading &reading, qint64 line, const QString &part)
{
    QVERIFY(reading.refusal);
    QCOMPARE(reading.refusal->file(), u"Test.xml"_s);
    QCOMPARE(reading.refusal->line(), line);
    QVERIFY2(reading.refusal->reason().contains(part), qPrintable(reading.refusal->reason()));
}

} // namespace

/// What a metadata file in XML format may look like, of which HFM publishes no schema, and what
/// becomes of files that are none.
class tst_XmlFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noWrapperIsAskedFor_data()
    {
        QTest::addColumn<QByteArray>("text");
        const QByteArray entity = inEntity(content);
        QTest::newRow("the dimension is the root") << entity;
        QTest::newRow("a root") << "<HFM>" + entity + "</HFM>";
        QTest::newRow("many wrappers") << "<a><b Name='x'><c>" + entity + "</c></b></a>";
        QTest::newRow("wrappers inside")
            << inEntity("<MEMBERS>" + memberA + memberB + "</MEMBERS><x><NODES Name='y'>" + nodeA +
                        nodeAB + "</NODES></x>");
        QTest::newRow("a dimension of two elements")
            << "<h>" + inEntity(memberA + memberB) + inEntity(nodeA + nodeAB) + "</h>";
        QTest::newRow("the hierarchy first")
            << "<h>" + inEntity(nodeA + nodeAB) + inEntity(memberA + memberB) + "</h>";
        QTest::newRow("by turns") << inEntity(memberA + nodeA + memberB + nodeAB);
        QTest::newRow("the nearest of several")
            << "<x Name='Account'><y Name='Scenario'>" + entity + "</y></x>";
        QTest::newRow("any element of that name") << "<z NAME='eNTITY'>" + content + "</z>";
        QTest::newRow("several roots")
            << inEntity(memberA + memberB) + "\n" + inEntity(nodeA + nodeAB);
        QTest::newRow("a declaration and several roots")
            << "<?xml version='1.0'?>\n" + inEntity(memberA) + inEntity(memberB + nodeA + nodeAB);
        QTest::newRow("a prefix that nobody declares")
            << "<h:x><h:d h:Name='Entity'>" + content + "</h:d></h:x>";
    }

    void noWrapperIsAskedFor()
    {
        QFETCH(QByteArray, text);
        const Reading reading = readXml(text);
        QVERIFY2(!reading.refusal, reading.refusal ? qPrintable(reading.refusal->reason()) : "");
        QCOMPARE(treeOf(*reading.entity()), u"A\n  B\n"_s);
        QCOMPARE(reading.entity()->EnumAllMemberLabels(), QStringList({u"A"_s, u"B"_s}));
        QCOMPARE(reading.warnings(), QStringList());
    }

    void namesCompareWithoutCase()
    {
        const Reading reading =
            readXml("<d name='ENTITY'><member><Label>A</Label><at name='userdefined1'>one</at>"
                    "<At NAME='ISICP'>y</At><defaultParent>#ROOT</defaultParent>"
                    "<Description language='English'>The A</Description></member>"
                    "<Node><Child>A</Child></Node></d>");
        const auto entity = reading.entity();
        QCOMPARE(treeOf(*entity), u"A\n"_s);
        QCOMPARE(entity->entityAttributes()->GetEntityUserDefined1(0), u"one"_s);
        QVERIFY(entity->entityAttributes()->GetEntityIsICP(0));
        QCOMPARE(entity->GetMemberDescription(0, 0), u"The A"_s);
    }

    void whatIsNotKnownIsSkipped()
    {
        const Reading reading =
            readXml("<!DOCTYPE d [<!ENTITY co 'and company'>]>\n<!-- <MEMBER/> --><?pi x?>"
                    "<d Name='Entity' Other='x'>stray text<UNKNOWN><LABEL>Z</LABEL></UNKNOWN>"
                    "<MEMBER Id='7'><WRAP><LABEL>Z</LABEL><MEMBER/></WRAP>"
                    "<LABEL kind='x'>A<i>Z</i></LABEL><AT Name='NoSuchColumn'>Z</AT>"
                    "<AT>Z</AT><AT Name='UserDefined2'>two</AT>"
                    "<DESCRIPTION Language='English'>A &co;</DESCRIPTION>"
                    "<DEFAULTPARENT/></MEMBER><NODE><CHILD>A</CHILD><LEVEL>1</LEVEL></NODE></d>");
        QCOMPARE(reading.warnings(), QStringList());
        const auto entity = reading.entity();
        QCOMPARE(entity->EnumAllMemberLabels(), QStringList{u"A"_s});
        QCOMPARE(entity->entityAttributes()->GetEntityUserDefined2(0), u"two"_s);
        QCOMPARE(entity->GetMemberDescription(0, 0), u"A and company"_s);
    }

    void attributesGoByNameNeverByPosition()
    {
        const Reading reading = readXml(
            inEntity("<MEMBER><AT Name='UserDefined3'>three</AT><LABEL>A</LABEL>"
                     "<AT Name='DefCurrency'>EUR</AT></MEMBER>"
                     "<MEMBER><LABEL>B</LABEL><AT Name='DefCurrency'>USD</AT>"
                     "<AT Name='UserDefined1'>=one=</AT><AT Name='UserDefined3'>3</AT></MEMBER>"));
        const auto view = reading.entity()->entityAttributes();
        QCOMPARE(view->GetEntityUserDefined3(0), u"three"_s);
        QCOMPARE(view->GetEntityUserDefined1(0), QString());
        QCOMPARE(view->GetEntityUserDefined1(1), u"=one="_s);
        QCOMPARE(view->GetEntityUserDefined3(1), u"3"_s);
        QCOMPARE(reading.value()->GetMemberLabel(view->GetEntityCurrencyId(1)), u"USD"_s);
    }

    void textIsTrimmedAndInOneLine()
    {
        const Reading reading =
            readXml(inEntity("<MEMBER><LABEL>\n  A \t</LABEL><DESCRIPTION Language=' English '>"
                             "one;\r\ntwo\nthree</DESCRIPTION></MEMBER>"));
        QCOMPARE(reading.entity()->GetMemberLabel(0), u"A"_s);
        QCOMPARE(reading.entity()->GetMemberDescription(0, 0), u"one; two three"_s);
        QCOMPARE(reading.metadata()->GetLanguages(), QStringList{u"English"_s});
    }

    void everyDelimiterMayStandInText()
    {
        const QString all = u",~@$%^&|:;?\\#"_s;
        const Reading reading = readXml(
            inEntity("<MEMBER><LABEL>" + all.toHtmlEscaped().toUtf8() + "</LABEL></MEMBER>"));
        QCOMPARE(reading.entity()->EnumAllMemberLabels(), QStringList{all});
    }

    void warningsNameTheLine()
    {
        const Reading reading =
            readXml("<h>\n<d Name='Entity'>\n" + memberA + "\n" + memberA +
                    "\n<NODE>\n<PARENT>A</PARENT>\n<CHILD>Stray</CHILD></NODE>\n" + nodeA +
                    "\n</d>\n" + memberB + "</h>");
        QCOMPARE(reading.warnings().size(), 3);
        QVERIFY(reading.warnsOf(4, {u"A"_s}));
        QVERIFY(reading.warnsOf(5, {u"Stray"_s}));
        QVERIFY(reading.warnsOf(10, {u"B"_s}));
    }

    void recordsThatLackALabelAreLeftOut()
    {
        const Reading reading = readXml("<d Name='Entity'>\n<MEMBER/>\n<NODE/>\n" + content +
                                        "\n<MISC Name='Currencies'>\n<MISCENTRY/></MISC></d>");
        QCOMPARE(treeOf(*reading.entity()), u"A\n  B\n"_s);
        QCOMPARE(reading.warnings().size(), 3);
        for (const int line : {2, 3, 6})
            QVERIFY(reading.warnsOf(line, {}));
    }

    void everyEncodingIsRead_data()
    {
        QTest::addColumn<QByteArray>("mark");
        QTest::addColumn<QStringConverter::Encoding>("encoding");
        QTest::addColumn<QString>("declared");
        QTest::newRow("UTF-8") << QByteArray() << QStringConverter::Utf8 << u"utf-8"_s;
        QTest::newRow("UTF-8 with mark")
            << QByteArray("\xEF\xBB\xBF") << QStringConverter::Utf8 << u"utf-8"_s;
        QTest::newRow("UTF-8 that says otherwise")
            << QByteArray() << QStringConverter::Utf8 << u"utf-16"_s;
        QTest::newRow("Windows-1252")
            << QByteArray() << QStringConverter::Latin1 << u"windows-1252"_s;
        QTest::newRow("UTF-16LE") << QByteArray() << QStringConverter::Utf16LE << u"utf-16"_s;
        QTest::newRow("UTF-16LE with mark")
            << QByteArray("\xFF\xFE") << QStringConverter::Utf16LE << u"utf-16"_s;
        QTest::newRow("UTF-16BE with mark")
            << QByteArray("\xFE\xFF") << QStringConverter::Utf16BE << u"utf-16"_s;
    }

    void everyEncodingIsRead()
    {
        QFETCH(QByteArray, mark);
        QFETCH(QStringConverter::Encoding, encoding);
        QFETCH(QString, declared);
        // Longer than the pieces that a file is read in.
        QString text =
            u"<?xml version=\"1.0\" encoding=\"%1\"?>\n<d Name='Entity'>"_s.arg(declared);
        for (int i = 0; i < 20000; ++i)
            text +=
                u"<MEMBER><LABEL>é%1</LABEL><DEFAULTPARENT>#root</DEFAULTPARENT></MEMBER>\n"_s.arg(
                    i);
        QStringEncoder encoder(encoding);
        const Reading reading = readXml(mark + QByteArray(encoder(QString(text + u"</d>"_s))));
        QVERIFY2(!reading.refusal, reading.refusal ? qPrintable(reading.refusal->reason()) : "");
        QCOMPARE(reading.entity()->EnumAllMembers().size(), 20000);
        QCOMPARE(reading.entity()->GetMemberLabel(19999), u"é19999"_s);
    }

    void deepNestingDoesNotMatter()
    {
        QByteArray text = "<d Name='Entity'>";
        constexpr int depth = 100000;
        for (int i = 0; i < depth; ++i)
            text += i % 2 == 0 ? "<a>" : "<a Name='Entity'>";
        text += content;
        for (int i = 0; i < depth; ++i)
            text += "</a>";
        const Reading reading = readXml(text + "</d>");
        QCOMPARE(treeOf(*reading.entity()), u"A\n  B\n"_s);
    }

    void deepNestingInsideARecordDoesNotMatterEither()
    {
        QByteArray text = "<d Name='Entity'><MEMBER><LABEL>A";
        constexpr int depth = 100000;
        for (int i = 0; i < depth; ++i)
            text += "<a>";
        for (int i = 0; i < depth; ++i)
            text += "</a>";
        const Reading reading = readXml(text + "</LABEL></MEMBER></d>");
        QCOMPARE(reading.entity()->EnumAllMemberLabels(), QStringList{u"A"_s});
    }

    void noExternalEntityIsResolved()
    {
        const ClusterFolder secret;
        secret.write(u"secret.txt"_s, "Secret");
        const QByteArray path = secret.path(u"secret.txt"_s).toUtf8();
        const Reading reading =
            readXml("<!DOCTYPE d [<!ENTITY s SYSTEM \"file://" + path +
                    "\">]><d Name='Entity'><MEMBER><LABEL>A&s;</LABEL></MEMBER></d>");
        if (reading.application)
            QVERIFY(!reading.entity()->GetMemberLabel(0).contains(u"Secret"));
        else
            QVERIFY(!reading.refusal->reason().contains(u"Secret"));
    }

    void theExpansionOfEntitiesIsBounded()
    {
        QByteArray text = "<!DOCTYPE d [<!ENTITY e0 'xxxxxxxxxx'>";
        for (int i = 1; i < 10; ++i) {
            const QByteArray before = "&e" + QByteArray::number(i - 1) + ';';
            text += "<!ENTITY e" + QByteArray::number(i) + " '" + before.repeated(10) + "'>";
        }
        const qint64 memory = peakOfResidentMemory();
        compareRefusal(
            readXml(text + "]><d Name='Entity'><MEMBER><LABEL>&e9;</LABEL></MEMBER></d>"), 1,
            u"no XML"_s);
        QVERIFY(peakOfResidentMemory() - memory < (qint64(64) << 20));
    }

    void aTextWithoutEndIsRefusedBeforeItFillsTheMemory()
    {
        compareRefusal(readXml("<d Name='Entity'><MEMBER>\n<LABEL>" + QByteArray(20 << 20, 'x')), 2,
                       u"without an element"_s);
    }

    void whatIsNoMetadataIsRefused_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("line");
        QTest::addColumn<QString>("part");
        QTest::newRow("empty") << QByteArray("") << 0 << u"empty"_s;
        QTest::newRow("prose") << QByteArray("Dear all,\n") << 1 << u"no XML"_s;
        QTest::newRow("APP format") << QByteArray("!MEMBERS=Entity\nA\n") << 1 << u"no XML"_s;
        QTest::newRow("zeros") << QByteArray(5000, '\0') << 1 << u"no XML"_s;
        QTest::newRow("of something else")
            << QByteArray("<html><body>x</body></html>\n") << 0 << u"holds no dimension"_s;
        QTest::newRow("cut off") << QByteArray("<d Name='Entity'>\n<MEMBER>\n<LABEL>A</LABEL>") << 3
                                 << u"no XML"_s;
        QTest::newRow("tags that cross")
            << QByteArray("<d Name='Entity'>\n<a></b>\n</d>") << 2 << u"no XML"_s;
        QTest::newRow("an entity that nobody declares")
            << QByteArray("<d Name='Entity'><MEMBER><LABEL>&x;</LABEL></MEMBER></d>") << 1
            << u"no XML"_s;
    }

    void whatIsNoMetadataIsRefused()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, line);
        QFETCH(QString, part);
        compareRefusal(readXml(text), line, part);
    }

    void aCycleIsRefusedWithItsLine()
    {
        compareRefusal(readXml("<d Name='Entity'>\n" + nodeA + "\n" + nodeAB +
                               "\n<NODE><PARENT>B</PARENT><CHILD>A</CHILD></NODE>\n</d>"),
                       4, u"'A'"_s);
    }

    void ofBothFormatsAppIsReadWithAWarning()
    {
        const ClusterFolder cluster;
        cluster.write(u"Test.app"_s, "!MEMBERS=Entity\nA\n!HIERARCHIES=Entity\n;A\n");
        cluster.write(u"Test.xml"_s, "<broken");
        const Reading reading = readFiles(cluster.applications().first());
        QCOMPARE(reading.entity()->EnumAllMemberLabels(), QStringList{u"A"_s});
        QCOMPARE(reading.warnings(),
                 QStringList{u"0: Test.xml stands beside this file; it is not read."_s});
    }
};

QTEST_APPLESS_MAIN(tst_XmlFiles)
#include "tst_XmlFiles.moc"
