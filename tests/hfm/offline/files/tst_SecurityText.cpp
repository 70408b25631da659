#include "Reading.h"

#include <QStringEncoder>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray entities = "!HIERARCHIES=Entity\n;A\n!MEMBERS=Entity\nA\n";

Reading withSecurity(const QByteArray &security)
{
    return readTexts({entities, {}, security});
}

/// The file with the delimiter where it has a '*'.
QByteArray delimited(QByteArray text, char delimiter)
{
    return text.replace('*', delimiter);
}

const char wholeFile[] = "!FILE_FORMAT=2.0\n!USERS_AND_GROUPS\njane@corp.com@LDAP\nÉva@LDAP\n"
                         "!SECURITY_CLASSES\n[Default]\nSÜD\n"
                         "!ROLE_ACCESS\nLoad System*jane@corp.com@LDAP\n"
                         "!SECURITY_CLASS_ACCESS\n[Default]*jane@corp.com@LDAP*Read*N\n"
                         "SÜD*Éva@LDAP*All*Y\n";

void compareWholeFile(const Reading &reading)
{
    QCOMPARE(reading.warnings(), QStringList());
    const auto security = reading.session()->GetSecurity();
    QCOMPARE(security->EnumSecurityClasses().names, QStringList({u"[Default]"_s, u"SÜD"_s}));
    QCOMPARE(security->EnumClassAccess(0).names,
             QStringList({u"LDAP\\jane@corp.com"_s, u"LDAP\\Éva"_s}));
    QCOMPARE(security->EnumClassAccess(0).codes, QList<qint32>({2, 0}));
    QCOMPARE(security->EnumClassAccess(1).codes, QList<qint32>({0, 4}));
    QCOMPARE(security->EnumUserRoles(0).names, QStringList{u"Load System"_s});
    QCOMPARE(security->EnumRoleUsers(0).flags, QStringList({u"True"_s, u"False"_s}));
}

} // namespace

/// Delimiters, line ends and encodings of security files.
class tst_SecurityText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyAllowedCharacterButTheAtDelimits_data()
    {
        QTest::addColumn<char>("delimiter");
        for (const char delimiter : QByteArray(",~$%^&|:;?\\#"))
            QTest::newRow(QByteArray(1, delimiter).constData()) << delimiter;
    }

    void everyAllowedCharacterButTheAtDelimits()
    {
        QFETCH(char, delimiter);
        compareWholeFile(withSecurity(delimited(wholeFile, delimiter)));
    }

    void theDelimiterIsTheOneThatSplitsAccessIntoThreeOrFourFields_data()
    {
        QTest::addColumn<QByteArray>("access");
        QTest::newRow("three fields") << QByteArray("SC*Doe, Jane*Read\n");
        QTest::newRow("four fields") << QByteArray("SC*Doe, Jane*Read*N\n");
        QTest::newRow("another one splits so too") << QByteArray("SC*Doe, Jane, Dr*Read*N\n");
        QTest::newRow("one too many at the end") << QByteArray("SC*Doe, Jane*Read*N*\n");
        QTest::newRow("most of them") << QByteArray("SC*Doe, Jane*Read*N\nSC*x*Read*N*x,y,z\n"
                                                    "SC*y*All*N\n");
    }

    void theDelimiterIsTheOneThatSplitsAccessIntoThreeOrFourFields()
    {
        QFETCH(QByteArray, access);
        for (const char delimiter : QByteArray(";|~&")) {
            const Reading reading =
                withSecurity(delimited("!SECURITY_CLASS_ACCESS\n" + access, delimiter));
            const auto security = reading.session()->GetSecurity();
            QCOMPARE(security->EnumSecurityClasses().names, QStringList{u"SC"_s});
            QVERIFY(security->EnumClassAccess(0).names.first().startsWith(u"Doe, Jane"_s));
            QCOMPARE(security->EnumClassAccess(0).codes.first(), 2);
        }
    }

    void theSemicolonIsTakenWhereRecordsDoNotTell()
    {
        const Reading reading = withSecurity("!SECURITY_CLASSES\nSC, A\n!USERS_AND_GROUPS\n"
                                             "a,b@X\n!ROLE_ACCESS\nA,B;a,b@X\n");
        QCOMPARE(reading.warnings(), QStringList());
        const auto security = reading.session()->GetSecurity();
        QCOMPARE(security->EnumRoleUsers(security->GetRoleId(u"A,B"_s)).names,
                 QStringList{u"X\\a,b"_s});
        QCOMPARE(security->EnumSecurityClasses().names, QStringList{u"SC, A"_s});
    }

    void withoutRecordsOfAccessThoseOfRolesTell()
    {
        const Reading reading = withSecurity("!USERS_AND_GROUPS\njane@X\n!SECURITY_CLASSES\nSC\n"
                                             "!ROLE_ACCESS\nLoad System,jane@X\n");
        QCOMPARE(reading.warnings(), QStringList());
        QCOMPARE(reading.session()->GetSecurity()->EnumUserRoles(0).names,
                 QStringList{u"Load System"_s});
    }

    void theMetadataHasADelimiterOfItsOwn()
    {
        const Reading reading = readTexts({"!MEMBERS=Entity\nA,,,,,SÜD,,,,,,DefaultParent=#root\n"
                                           "!HIERARCHIES=Entity\n,A\n",
                                           {},
                                           delimited(wholeFile, '|')});
        compareWholeFile(reading);
        QCOMPARE(reading.entity()->entityAttributes()->GetEntitySecurityClassId(0), 1);
    }

    void everyLineEndIsRead_data()
    {
        QTest::addColumn<QByteArray>("end");
        QTest::newRow("CR LF") << QByteArray("\r\n");
        QTest::newRow("LF") << QByteArray("\n");
        QTest::newRow("CR") << QByteArray("\r");
    }

    void everyLineEndIsRead()
    {
        QFETCH(QByteArray, end);
        QByteArray text = delimited(wholeFile, ';').replace('\n', end);
        compareWholeFile(withSecurity(text));
        text.chop(end.size());
        compareWholeFile(withSecurity(text));
    }

    void everyEncodingIsRead_data()
    {
        QTest::addColumn<QByteArray>("mark");
        QTest::addColumn<QStringConverter::Encoding>("encoding");
        QTest::newRow("UTF-8") << QByteArray() << QStringConverter::Utf8;
        QTest::newRow("UTF-8 with mark") << QByteArray("\xEF\xBB\xBF") << QStringConverter::Utf8;
        QTest::newRow("Windows-1252") << QByteArray() << QStringConverter::Latin1;
        QTest::newRow("UTF-16LE") << QByteArray() << QStringConverter::Utf16LE;
        QTest::newRow("UTF-16BE") << QByteArray() << QStringConverter::Utf16BE;
        QTest::newRow("UTF-16LE with mark") << QByteArray("\xFF\xFE") << QStringConverter::Utf16LE;
        QTest::newRow("UTF-16BE with mark") << QByteArray("\xFE\xFF") << QStringConverter::Utf16BE;
    }

    void everyEncodingIsRead()
    {
        QFETCH(QByteArray, mark);
        QFETCH(QStringConverter::Encoding, encoding);
        QStringEncoder encoder(encoding);
        const QByteArray text = encoder(QString::fromUtf8(delimited(wholeFile, ';')));
        compareWholeFile(withSecurity(mark + text));
    }
};

QTEST_APPLESS_MAIN(tst_SecurityText)
#include "tst_SecurityText.moc"
