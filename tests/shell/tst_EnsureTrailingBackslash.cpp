#include "shell/EnsureTrailingBackslash.h"

#include <QTest>

class tst_EnsureTrailingBackslash : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPathEndsInABackslash_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("ended");
        const auto row = [](const char *name, const char *path, const char *ended) {
            QTest::newRow(name) << QString::fromLatin1(path) << QString::fromLatin1(ended);
        };
        row("without one it gets one", "C:\\Extracts", "C:\\Extracts\\");
        row("with one it stays", "C:\\Extracts\\", "C:\\Extracts\\");
        row("a root stays", "C:\\", "C:\\");
        row("only the last character counts", "C:\\a\\b", "C:\\a\\b\\");
        row("two stay two", "C:\\\\", "C:\\\\");
        row("a slash is no backslash", "C:/Extracts/", "C:/Extracts/\\");
        row("an empty path", "", "\\");
    }
    void aPathEndsInABackslash()
    {
        QFETCH(QString, path);
        QTEST(EnsureTrailingBackslash(path), "ended");
    }

    void surroundingBlanksCountForTheTestOnly_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("ended");
        const auto row = [](const char *name, const char *path, const char *ended) {
            QTest::newRow(name) << QString::fromLatin1(path) << QString::fromLatin1(ended);
        };
        row("after a backslash", "C:\\Extracts\\  ", "C:\\Extracts\\  ");
        row("after a name", "C:\\Extracts ", "C:\\Extracts \\");
        row("before", "  C:\\Extracts\\", "  C:\\Extracts\\");
        row("on both sides", " C:\\Extracts ", " C:\\Extracts \\");
        row("nothing but blanks", "  ", "  \\");
        row("a tab is no blank", "C:\\Extracts\\\t", "C:\\Extracts\\\t\\");
    }
    void surroundingBlanksCountForTheTestOnly()
    {
        QFETCH(QString, path);
        QTEST(EnsureTrailingBackslash(path), "ended");
    }

    void anotherPlatformsSeparatorFollowsTheSameRule()
    {
        const auto ended = [](const char *path) {
            return EnsureTrailingBackslash(QString::fromLatin1(path), u'/');
        };
        QCOMPARE(ended("/home/jo"), QStringLiteral("/home/jo/"));
        QCOMPARE(ended("/home/jo/"), QStringLiteral("/home/jo/"));
        QCOMPARE(ended("/home/jo/ "), QStringLiteral("/home/jo/ "));
        QCOMPARE(ended("/"), QStringLiteral("/"));
        QCOMPARE(ended("/home/jo\\"), QStringLiteral("/home/jo\\/"));
    }
};

QTEST_APPLESS_MAIN(tst_EnsureTrailingBackslash)
#include "tst_EnsureTrailingBackslash.moc"
