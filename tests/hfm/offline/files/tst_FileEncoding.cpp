#include "Reading.h"

#include <QStringEncoder>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

enum Form { Utf8, Utf8Marked, Utf16Little, Utf16Big, Utf16LittleMarked, Utf16BigMarked };

QByteArray encoded(const QString &text, Form form)
{
    const auto utf16 = [&](QStringConverter::Encoding encoding) -> QByteArray {
        return QStringEncoder(encoding)(text);
    };
    switch (form) {
    case Utf8:
        break;
    case Utf8Marked:
        return "\xEF\xBB\xBF" + text.toUtf8();
    case Utf16Little:
        return utf16(QStringConverter::Utf16LE);
    case Utf16Big:
        return utf16(QStringConverter::Utf16BE);
    case Utf16LittleMarked:
        return "\xFF\xFE" + utf16(QStringConverter::Utf16LE);
    case Utf16BigMarked:
        return "\xFE\xFF" + utf16(QStringConverter::Utf16BE);
    }
    return text.toUtf8();
}

void addForms()
{
    QTest::addColumn<Form>("form");
    QTest::newRow("UTF-8") << Utf8;
    QTest::newRow("UTF-8 with a mark") << Utf8Marked;
    QTest::newRow("UTF-16 little endian") << Utf16Little;
    QTest::newRow("UTF-16 big endian") << Utf16Big;
    QTest::newRow("UTF-16 little endian with a mark") << Utf16LittleMarked;
    QTest::newRow("UTF-16 big endian with a mark") << Utf16BigMarked;
}

/// A file of one entity with this description, in UTF-8.
QByteArray described(const QByteArray &description)
{
    return "!MEMBERS=Entity\r\nA;;;;;;;;;;;DefaultParent=#root;English=" + description +
           "\r\n!HIERARCHIES=Entity\r\n;A\r\n";
}

} // namespace
Q_DECLARE_METATYPE(Form)

/// How the text of a file is stored.
class tst_FileEncoding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachEncodingIsRecognised_data() { addForms(); }

    void eachEncodingIsRecognised()
    {
        QFETCH(Form, form);
        const QString text = u"!CUSTOM_ORDER=Møvement;Product\r\n!MEMBERS=Entity\r\n"
                             "'Label;UserDefined1;DefaultParent;Descriptions\r\n"
                             "Société;Ω 東京 😀;DefaultParent=#root;Français=à l’œuvre\r\n"
                             "!HIERARCHIES=Entity\r\n;Société\r\n"
                             "!HIERARCHIES=MØVEMENT\r\n;Å;1\r\n"_s;
        const Reading reading = readText(encoded(text, form));
        const auto entity = reading.entity();
        QCOMPARE(treeOf(*entity), u"Société\n"_s);
        QCOMPARE(entity->GetMemberId(u"SOCIÉTÉ"_s), 0);
        QCOMPARE(entity->GetMemberDescription(0, 0), u"à l’œuvre"_s);
        QCOMPARE(reading.metadata()->GetLanguages(), QStringList{u"Français"_s});
        QCOMPARE(entity->entityAttributes()->GetEntityUserDefined1(0), u"Ω 東京 😀"_s);
        QCOMPARE(treeOf(*reading.custom1()), u"Å\n[None]\n"_s);
    }

    void charactersMayStandAcrossTheBordersOfPieces_data()
    {
        QTest::addColumn<Form>("form");
        QTest::addColumn<int>("shift");
        for (int shift = 0; shift < 5; ++shift) {
            QTest::addRow("UTF-8, %d", shift) << Utf8 << shift;
            QTest::addRow("UTF-8 with a mark, %d", shift) << Utf8Marked << shift;
            QTest::addRow("UTF-16 little endian, %d", shift) << Utf16Little << shift;
            QTest::addRow("UTF-16 big endian with a mark, %d", shift) << Utf16BigMarked << shift;
        }
    }

    /// Files are read in pieces of 1 MiB. Around each border stand nothing but long characters.
    void charactersMayStandAcrossTheBordersOfPieces()
    {
        QFETCH(Form, form);
        QFETCH(int, shift);
        const QString filler = u"é東😁"_s.repeated(250);
        QString text = u"!MEMBERS=Entity\n"_s + QString(shift, QLatin1Char('\n'));
        const int members = 1100;
        for (int i = 0; i < members; ++i)
            text += u"M%1;;;;;;;;;;;DefaultParent=#root;English=%2\n"_s.arg(i).arg(filler);
        const QByteArray bytes = encoded(text, form);
        QVERIFY(bytes.size() > 2 << 20);
        const Reading reading = readText(bytes);
        const auto entity = reading.entity();
        QCOMPARE(entity->EnumAllMembers().size(), members);
        for (int i = 0; i < members; ++i) {
            QCOMPARE(entity->GetMemberLabel(i), u"M%1"_s.arg(i));
            if (entity->GetMemberDescription(i, 0) != filler)
                QFAIL(qPrintable(u"The description of M%1 is another one."_s.arg(i)));
        }
        QCOMPARE(reading.application->warnings.count(), members); // none has a node
    }

    void lineEndsMayStandAcrossTheBordersOfPieces_data()
    {
        QTest::addColumn<int>("before");
        for (int before = -3; before <= 1; ++before)
            QTest::addRow("the CR %d bytes from it", before) << before;
    }

    void lineEndsMayStandAcrossTheBordersOfPieces()
    {
        QFETCH(int, before);
        const QByteArray start = "!HIERARCHIES=Entity\r\n;A\r\n'";
        const QByteArray filler((1 << 20) + before - start.size(), 'x');
        const Reading reading = readText(start + filler + "\r\nA;B\r\nA;B\r\n");
        QCOMPARE(treeOf(*reading.entity()), u"A\n  B\n"_s);
        QVERIFY(reading.warnsOf(5, {u"A"_s, u"B"_s}));
    }

    void otherwiseItIsWindows1252()
    {
        const Reading reading = readText(described("\x80 caf\xE9 \x93quoted\x94 \x9C\xFF"));
        QCOMPARE(reading.entity()->GetMemberDescription(0, 0), u"€ café “quoted” œÿ"_s);
        QCOMPARE(reading.warnings(), QStringList());
    }

    void everyByteOfWindows1252IsRead()
    {
        for (int byte = 0x80; byte <= 0xFF; ++byte) {
            const Reading reading = readText(described("a" + QByteArray(1, char(byte)) + "b"));
            const QString text = reading.entity()->GetMemberDescription(0, 0);
            QCOMPARE(text.size(), 3);
            if (byte >= 0xA0)
                QCOMPARE(text[1], QChar(byte));
        }
    }

    void itIsUtf8OnlyWhereTheWholeFileIs()
    {
        const QByteArray manyLines = QByteArray("\n").repeated(3 << 20);
        const QByteArray text = described("caf\xC3\xA9");
        QCOMPARE(readText(text + manyLines + "'ok").entity()->GetMemberDescription(0, 0),
                 u"café"_s);
        for (const QByteArray &end : QByteArrayList{"'\xE9 ", "'\xC3", "'\xF0\x9F\x98"})
            QCOMPARE(readText(text + manyLines + end).entity()->GetMemberDescription(0, 0),
                     u"cafÃ©"_s);
    }

    void aMarkDecidesWhateverFollows()
    {
        const Reading reading = readText("\xEF\xBB\xBF" + described("caf\xC3\xA9 \xE9."));
        QVERIFY(reading.entity()->GetMemberDescription(0, 0).startsWith(u"café "_s));
        QCOMPARE(treeOf(*reading.entity()), u"A\n"_s);
    }

    void utf16IsRecognisedInFilesOfOtherScripts_data() { addForms(); }

    void utf16IsRecognisedInFilesOfOtherScripts()
    {
        QFETCH(Form, form);
        QString text = u"!HIERARCHIES=Entity\r\n;グループ\r\n"_s;
        QString tree = u"グループ\n"_s;
        for (int i = 0; i < 500; ++i) {
            const QString label = u"東京本社\u3000第一営業部第二課"_s + QChar(0x4E00 + i);
            text += u"グループ;"_s + label + u"\r\n"_s;
            tree += u"  "_s + label + QLatin1Char('\n');
        }
        const Reading reading = readText(encoded(text, form));
        QCOMPARE(treeOf(*reading.entity()), tree);
    }

    void utf16IsRecognisedWhereTheFirstCharacterIsNotAscii()
    {
        for (const Form form : {Utf16Little, Utf16Big}) {
            for (const QString &first : {u"é"_s, u"東"_s}) {
                const Reading reading =
                    readText(encoded(first + u"\n!HIERARCHIES=Entity\n;Société\n"_s, form));
                QCOMPARE(treeOf(*reading.entity()), u"Société\n"_s);
            }
        }
    }

    void theProfileAndTheSecurityFileHaveEncodingsOfTheirOwn()
    {
        const Reading reading =
            readTexts({"!MEMBERS=Entity\nA;;;;;\xC9t\xE9;;;;;;DefaultParent=#root\n"
                       "!HIERARCHIES=Entity\n;A\n",
                       encoded(u"!LANGUAGES\nFrançais\n"_s, Utf16Big),
                       encoded(u"!SECURITY_CLASSES\n[Default]\nÉté\n"_s, Utf16LittleMarked)});
        QCOMPARE(reading.metadata()->GetLanguages(), QStringList{u"Français"_s});
        QCOMPARE(reading.warnings(), QStringList());
    }

    void aByteTooManyInUtf16IsNoReasonToRefuseIt()
    {
        const QString text = u"!HIERARCHIES=Entity\r\n;A\r\n"_s;
        for (const Form form : {Utf16Little, Utf16Big, Utf16LittleMarked, Utf16BigMarked})
            QCOMPARE(treeOf(*readText(encoded(text, form) + "\n").entity()), u"A\n"_s);
    }
};

QTEST_APPLESS_MAIN(tst_FileEncoding)
#include "tst_FileEncoding.moc"
