#include "EveryAnswer.h"
#include "Reading.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace hfm::offline;

namespace {

/// What was warned of, without the lines, which differ.
QString warningsOf(const Reading &reading)
{
    QStringList texts;
    for (const Warning &warning : reading.application->warnings.list())
        texts.append(warning.text);
    texts.sort();
    return texts.join(u'\n');
}

void compareAnswers(const Reading &app, const Reading &xml)
{
    QVERIFY2(!xml.refusal, xml.refusal ? qPrintable(xml.refusal->description()) : "");
    const QStringList fromApp = EveryAnswer(*app.session()).lines();
    const QStringList fromXml = EveryAnswer(*xml.session()).lines();
    for (qsizetype i = 0; i < std::min(fromApp.size(), fromXml.size()); ++i)
        QCOMPARE(fromXml[i], fromApp[i]);
    QCOMPARE(fromXml.size(), fromApp.size());
}

const QByteArray security = "!USERS_AND_GROUPS\njane@CORP\nReaders\n!SECURITY_CLASSES\n[Default]\n"
                            "SC_B\n!ROLE_ACCESS\nLoad System;jane@CORP\n"
                            "!SECURITY_CLASS_ACCESS\nSC_A;jane@CORP;All;N\nSC_B;Readers;Read;N\n";

const QByteArray profile = "!LANGUAGES\nFrench\nEnglish\n!MEMBERS=Year\n2010;DefaultParent=#root\n"
                           "!HIERARCHIES=Year\n;2010\n";

const QByteArray app =
    "!FILE_FORMAT=11.12\n!CUSTOM_ORDER=Movement;Product;C3;C4;C5\n"
    "!APPLICATION_SETTINGS\nDefaultCurrency=CHF\n"
    "!CURRENCIES\nEUR;0;M;Y;English=Euro;French=L'euro\nUSD;0\n"
    "!CONSOLIDATION_METHODS\nGLOBAL;Y;N;<=;0;100;x;English=Global = all\n"
    "!MEMBERS=Entity\n"
    "[None];;N;N;N;;;;;;;DefaultParent=#root\n"
    "A;EUR;Y;N;Y;SC_A;one;;three;H;;DefaultParent=#root;English=The A & co;French=Le A = tout\n"
    "B;GBP;N;Y;N;SC_B;;;;;SC_P;DefaultParent=A\n"
    "Lost;;Y;Y;N;;;;;;;DefaultParent=A\n"
    "!HIERARCHIES=Entity\n;[None]\n;A\nA;B\n;Shared\nShared;B\n"
    "!MEMBERS=Movement\n[None];N;N;N;;;;;;DefaultParent=#root\n"
    "CLO;Y;N;N;u;;w;SC_M;1;DefaultParent=#root;English=Closing\n"
    "!HIERARCHIES=Movement\n;[None];1\n;CLO;0\nCLO;OPE;0.5\n"
    "!MEMBERS=C5\nX;N;N;N;;;;;;DefaultParent=#root\n"
    "!MEMBERS=Account\n"
    "P;GROUPLABEL;N;N;N;;;;;;;0;N;Y;Y;Y;Y;Y;;;;;;;N;;;DefaultParent=#root\n"
    "S;REVENUE;Y;Y;R;;CLO;[None];;No;T5;2;Y;Y;N;Y;N;Y;a;b;c;x;SC_A;[ICP Top];Y;;1;"
    "DefaultParent=P;English=Sales\n"
    "Active;BALANCERECURRING;N;N;Y;;;;;;;;N;N;N;N;N;N;;;;;;;N;;;DefaultParent=#root\n"
    "!HIERARCHIES=Account\n;P\nP;S\n;Active\n"
    "!MEMBERS=Value\n[None];English=No value\n!MEMBERS=ICP\n[ICP None];SC_I;English=Nobody\n"
    "!MEMBERS=Period\nY;DefaultParent=#root\nQ;DefaultParent=Y\n!HIERARCHIES=Period\n;Y\nY;Q\n";

/// A MEMBER of the label, with attributes and descriptions that are written out.
QByteArray member(const QByteArray &label, const QByteArray &parent, const QByteArray &rest = {})
{
    return "<MEMBER><LABEL>" + label + "</LABEL>" + rest + "<DEFAULTPARENT>" + parent +
           "</DEFAULTPARENT></MEMBER>\n";
}

QByteArray at(const QByteArray &name, const QByteArray &value)
{
    return "<AT Name=\"" + name + "\">" + value + "</AT>";
}

QByteArray node(const QByteArray &parent, const QByteArray &child, const QByteArray &weight = {})
{
    return "<NODE><PARENT>" + parent + "</PARENT><CHILD>" + child + "</CHILD>" +
           (weight.isEmpty() ? QByteArray() : at("AggrWeight", weight)) + "</NODE>\n";
}

QByteArray described(const QByteArray &language, const QByteArray &text)
{
    return "<DESCRIPTION Language=\"" + language + "\">" + text + "</DESCRIPTION>";
}

/// The same application as `app`.
QByteArray xmlTwin()
{
    QByteArray text = "<?xml version=\"1.0\"?>\n<X>\n<MISC Name=\"CustomOrder\">";
    for (const char *name : {"Movement", "Product", "C3", "C4", "C5"})
        text += "<MISCENTRY><LABEL>" + QByteArray(name) + "</LABEL></MISCENTRY>";
    text += "</MISC>\n<MISC Name=\"AppSettings\"><MISCENTRY><LABEL>DefaultCurrency</LABEL>" +
            at("Value", "CHF") +
            "</MISCENTRY></MISC>\n<MISC Name=\"Currencies\"><MISCENTRY><LABEL>"
            "EUR</LABEL>" +
            at("Scale", "0") + described("English", "Euro") + described("French", "L'euro") +
            "</MISCENTRY><MISCENTRY><LABEL>USD</LABEL>" + at("Scale", "0") +
            "</MISCENTRY></MISC>\n<MISC Name=\"ConsolMethods\"><MISCENTRY><LABEL>"
            "GLOBAL</LABEL>" +
            described("English", "Global = all") + "</MISCENTRY></MISC>\n";
    text += "<DIM Name=\"Entity\">\n" + member("[None]", "#root", at("AllowAdjs", "N")) +
            member("A", "#root",
                   at("SecurityClass", "SC_A") + at("DefCurrency", "EUR") + at("AllowAdjs", "Y") +
                       at("AllowAdjFromChildren", "Y") + at("UserDefined3", "three") +
                       at("UserDefined1", "one") + at("HoldingCompany", "H") +
                       described("English", "The A &amp; co") +
                       described("French", "Le A = <![CDATA[tout]]>")) +
            member("B", "A",
                   at("DefCurrency", "GBP") + at("IsICP", "Y") + at("SecurityClass", "SC_B")) +
            member("Lost", "A", at("AllowAdjs", "Y") + at("IsICP", "Y")) + node("", "[None]") +
            node("", "A") + node("A", "B") + node("", "Shared") + node("Shared", "B") + "</DIM>\n";
    text += "<DIM Name=\"Movement\">\n" + member("[None]", "#root") +
            member("CLO", "#root",
                   at("UserDefined1", "u") + at("UserDefined3", "w") + at("SecurityClass", "SC_M") +
                       at("IsCalculated", "Y") + described("English", "Closing")) +
            node("", "[None]", "1") + node("", "CLO", "0") + node("CLO", "OPE", "0.5") +
            "</DIM>\n<DIM Name=\"C5\">" + member("X", "#root") + "</DIM>\n";
    text += "<DIM Name=\"Account\">\n" +
            member("P", "#root",
                   at("AccountType", "GROUPLABEL") + at("EnableMovementAggr", "Y") +
                       at("EnableProductAggr", "Y") + at("EnableC3Aggr", "Y") +
                       at("EnableC4Aggr", "Y") + at("EnableC5Aggr", "Y")) +
            member("S", "P",
                   at("C5TopMember", "T5") + at("C4TopMember", "No") +
                       at("ProductTopMember", "[None]") + at("MovementTopMember", "CLO") +
                       at("ICPTopMember", "[ICP Top]") + at("AccountType", "REVENUE") +
                       at("IsCalculated", "Y") + at("IsConsolidated", "Y") + at("IsICP", "R") +
                       at("NumDecimalPlaces", "2") + at("UsesLineItems", "Y") +
                       at("EnableMovementAggr", "Y") + at("EnableC3Aggr", "Y") +
                       at("EnableC5Aggr", "Y") + at("UserDefined1", "a") + at("UserDefined2", "b") +
                       at("UserDefined3", "c") + at("SecurityClass", "SC_A") +
                       described("English", "Sales")) +
            member("Active", "#root", at("AccountType", "BALANCERECURRING") + at("IsICP", "Y")) +
            node("", "P") + node("P", "S") + node("", "Active") + "</DIM>\n";
    text += "<DIM Name=\"Value\"><MEMBER><LABEL>[None]</LABEL>" + described("English", "No value") +
            "</MEMBER></DIM>\n<DIM Name=\"ICP\"><MEMBER><LABEL>[ICP None]</LABEL>" +
            at("SecurityClass", "SC_I") + described("English", "Nobody") +
            "</MEMBER></DIM>\n<DIM Name=\"Period\">" + member("Y", "#root") + member("Q", "Y") +
            node("", "Y") + node("Y", "Q") + "</DIM>\n</X>\n";
    return text;
}

} // namespace

/// The same application in either format gives the same answers to every operation.
class tst_XmlTwins : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anApplicationOfEverythingAnswersAlike()
    {
        const Reading fromApp = readTexts({app, profile, security});
        const Reading fromXml = readXmlTexts({xmlTwin(), profile, security});
        compareAnswers(fromApp, fromXml);
        QCOMPARE(warningsOf(fromXml), warningsOf(fromApp));
    }

    void theSampleZenithAnswersAlike_data()
    {
        QTest::addColumn<bool>("withSecurity");
        QTest::newRow("as it is") << true;
        QTest::newRow("without security") << false;
    }

    void theSampleZenithAnswersAlike()
    {
        QFETCH(bool, withSecurity);
        const auto read = [&](const QString &folder) {
            const auto found = findApplications(QStringLiteral(TESSALY_SAMPLES) + folder);
            for (ApplicationFiles files : found) {
                if (!withSecurity)
                    files.security.clear();
                if (files.name == u"Zenith")
                    return readFiles(files);
            }
            return Reading();
        };
        const Reading fromApp = read(u"/Alderbrook"_s);
        const Reading fromXml = read(u"/Alderbrook-XML"_s);
        QVERIFY(fromApp.application && fromXml.application);
        QVERIFY(fromXml.application->files.isXml);
        compareAnswers(fromApp, fromXml);
        QCOMPARE(warningsOf(fromXml), warningsOf(fromApp));
    }
};

QTEST_APPLESS_MAIN(tst_XmlTwins)
#include "tst_XmlTwins.moc"
