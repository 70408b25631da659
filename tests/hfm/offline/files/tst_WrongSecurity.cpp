#include "Reading.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray entities = "!HIERARCHIES=Entity\n;A\n!MEMBERS=Entity\nA\n";
const QByteArray lists = "!USERS_AND_GROUPS\njane\njim\n!SECURITY_CLASSES\nSC_A\nSC_B\n";

Reading withSecurity(const QByteArray &security)
{
    return readTexts({entities, {}, security});
}

QList<qint32> accessTo(const Reading &reading, const QString &name)
{
    const auto security = reading.session()->GetSecurity();
    return security->EnumClassAccess(security->GetSecurityClassId(name)).codes;
}

} // namespace

/// What a security file may get wrong. The application opens whatever it is.
class tst_WrongSecurity : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aUserThatIsNotListedFollowsTheListedOnes()
    {
        const Reading reading = withSecurity(lists + "!SECURITY_CLASS_ACCESS\nSC_A;jo@X;Read;N\n"
                                                     "SC_A;jane;All;N\n"
                                                     "!ROLE_ACCESS\nDefault;jack\n");
        const auto security = reading.session()->GetSecurity();
        QCOMPARE(security->EnumClassAccess(0).names,
                 QStringList({u"jane"_s, u"jim"_s, u"X\\jo"_s, u"jack"_s}));
        QCOMPARE(accessTo(reading, u"SC_A"_s), QList<qint32>({4, 0, 2, 0}));
        QCOMPARE(reading.warnings(),
                 QStringList(
                     {u"Test.sec, line 8: 'jo@X' is not listed among the users and groups."_s,
                      u"Test.sec, line 11: 'jack' is not listed among the users and groups."_s}));
    }

    void aClassThatOnlyARecordOfAccessNamesComesLast()
    {
        const Reading reading = withSecurity(lists + "!SECURITY_CLASS_ACCESS\nSC_X;jane;Read;N\n");
        QCOMPARE(reading.session()->GetSecurity()->EnumSecurityClasses().names,
                 QStringList({u"SC_A"_s, u"SC_B"_s, u"SC_X"_s}));
        QCOMPARE(accessTo(reading, u"SC_X"_s), QList<qint32>({2, 0}));
        QCOMPARE(reading.warnings(),
                 QStringList{u"Test.sec, line 8: The security class 'SC_X' is nowhere defined."_s});
    }

    void ofTwoRecordsOfAUserAndAClassTheFirstHolds()
    {
        const Reading reading =
            withSecurity(lists + "!SECURITY_CLASS_ACCESS\nSC_A;jane;Read;N\nSC_B;jane;None;N\n"
                                 "SC_A;jane;All;N\nSC_A;JANE;Read;N\n");
        QCOMPARE(accessTo(reading, u"SC_A"_s), QList<qint32>({2, 0}));
        QCOMPARE(reading.warnings(),
                 QStringList({u"Test.sec, line 10: 'jane' has a record for 'SC_A' already; this "
                              "one is left out."_s,
                              u"Test.sec, line 11: 'jane' has a record for 'SC_A' already; this "
                              "one is left out."_s}));
    }

    void recordsThatLackAPartAreLeftOut_data()
    {
        QTest::addColumn<QByteArray>("record");
        QTest::addColumn<QString>("warning");
        const QString access = u"The record lacks a class or a user; it is left out."_s;
        const QString role = u"The record lacks a role or a user; it is left out."_s;
        QTest::newRow("no class") << QByteArray("!SECURITY_CLASS_ACCESS\n;jane;Read;N\n") << access;
        QTest::newRow("no user") << QByteArray("!SECURITY_CLASS_ACCESS\nSC_A;;Read;N\n") << access;
        QTest::newRow("a class alone") << QByteArray("!SECURITY_CLASS_ACCESS\nSC_A\n") << access;
        QTest::newRow("delimiters alone") << QByteArray("!SECURITY_CLASS_ACCESS\n;;;\n") << access;
        QTest::newRow("no role") << QByteArray("!ROLE_ACCESS\n;jane\n") << role;
        QTest::newRow("no user of a role") << QByteArray("!ROLE_ACCESS\nDefault;\n") << role;
        QTest::newRow("a role alone") << QByteArray("!ROLE_ACCESS\nDefault\n") << role;
    }

    void recordsThatLackAPartAreLeftOut()
    {
        QFETCH(QByteArray, record);
        QFETCH(QString, warning);
        const Reading reading = withSecurity(lists + record);
        QCOMPARE(reading.warnings(), QStringList{u"Test.sec, line 8: "_s + warning});
        QCOMPARE(accessTo(reading, u"SC_A"_s), QList<qint32>({0, 0}));
    }

    void aLineWithTooManyFieldsIsReadAsFarAsItGoes()
    {
        const Reading reading =
            withSecurity(lists + "!SECURITY_CLASS_ACCESS\nSC_A;jane;Read;N;x;y\nSC_A;jim;All;N;;\n"
                                 "SC_B;jim;All;N\n!ROLE_ACCESS\nDefault;jane;x\nDefault;jim;\n");
        QCOMPARE(accessTo(reading, u"SC_A"_s), QList<qint32>({2, 4}));
        QCOMPARE(reading.session()->GetSecurity()->EnumRoleUsers(0).flags,
                 QStringList({u"True"_s, u"True"_s}));
        QCOMPARE(reading.warnings(),
                 QStringList({u"Test.sec, line 8: The line has 6 fields where 4 are known; the "
                              "last ones are left out."_s,
                              u"Test.sec, line 12: The line has 3 fields where 2 are known; the "
                              "last ones are left out."_s}));
    }

    void aNameThatIsListedTwiceIsOne()
    {
        const Reading reading =
            withSecurity("!USERS_AND_GROUPS\njane\nJANE\n;\n!SECURITY_CLASSES\nSC_A\nSC_A;\n");
        QCOMPARE(reading.warnings(),
                 QStringList({u"Test.sec, line 3: 'JANE' is listed already."_s,
                              u"Test.sec, line 4: The line holds no name; it is left out."_s,
                              u"Test.sec, line 7: 'SC_A' is listed already."_s}));
        QCOMPARE(reading.session()->GetSecurity()->EnumClassAccess(0).names,
                 QStringList{u"jane"_s});
    }

    void aFileThatHoldsNoSecurityIsAWarning_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("beginning");
        QTest::newRow("nothing") << QByteArray("") << u"Test.sec: The file holds no users"_s;
        QTest::newRow("prose") << QByteArray("Dear all,\n")
                               << u"Test.sec: The file holds no users"_s;
        QTest::newRow("empty sections") << QByteArray("!USERS_AND_GROUPS\n!ROLE_ACCESS\n")
                                        << u"Test.sec: The file holds no users"_s;
        QTest::newRow("zeros") << QByteArray(5000, '\0') << u"Test.sec, line 1: A zero byte"_s;
        QTest::newRow("a zero further down") << "!USERS_AND_GROUPS\njane\n" + QByteArray("\0\n", 2)
                                             << u"Test.sec, line 3: A zero byte"_s;
        QTest::newRow("another product")
            << QByteArray("!FILE_FORMAT=ADS\n!USERS_AND_GROUPS\njane\n")
            << u"Test.sec, line 1: This is a flat file of another product"_s;
        QTest::newRow("a line without end") << "!USERS_AND_GROUPS\n" + QByteArray(17 << 20, 'x')
                                            << u"Test.sec, line 2: The line is longer"_s;
    }

    void aFileThatHoldsNoSecurityIsAWarning()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, beginning);
        const Reading reading = withSecurity(content);
        QCOMPARE(reading.warnings().size(), 1);
        QVERIFY2(reading.warnings().first().startsWith(beginning),
                 qPrintable(reading.warnings().first()));
        const auto session = reading.session();
        QVERIFY(session->GetSecurity()->EnumSecurityClasses().ids.isEmpty());
        QCOMPARE(session->GetMetadata()->GetEntityDimension()->EnumAllMembers().size(), 1);
    }

    void noiseInTheSectionsOpens()
    {
        quint32 state = 1;
        const QByteArray alphabet = "!'=;,@\\~#\r\n \tABab01\xC3\xA9\xFF";
        for (int round = 0; round < 300; ++round) {
            QByteArray text = "!SECURITY_CLASS_ACCESS\nA;b;Read\n";
            for (int i = 0; i < 300; ++i) {
                state = state * 1664525U + 1013904223U;
                text += alphabet[qsizetype(state >> 16U) % alphabet.size()];
                if (i % 60 == 59)
                    text += round % 2 ? "\n!ROLE_ACCESS\n" : "\n!USERS_AND_GROUPS\n";
            }
            const auto security = withSecurity(text).session()->GetSecurity();
            for (const hfm::ClassId id : security->EnumSecurityClasses().ids) {
                for (const QString &user : security->EnumClassAccess(id).names)
                    security->EnumUserRoles(security->GetUserId(user));
            }
        }
    }
};

QTEST_APPLESS_MAIN(tst_WrongSecurity)
#include "tst_WrongSecurity.moc"
