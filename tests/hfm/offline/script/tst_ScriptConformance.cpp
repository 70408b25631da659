#include "TestHost.h"

#include <QDir>
#include <QFile>
#include <QTest>

/// Runs the small scripts of the folder "cases", one a construct. A case is a line "### NAME", the
/// script, a line "---", and what comes of it: the values that it puts out, and for one that fails
/// a last line "! LINE:COLUMN: TEXT".
class tst_ScriptConformance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFileHoldsCases()
    {
        const QDir folder(QStringLiteral(SCRIPT_CASES));
        const QStringList files = folder.entryList({QStringLiteral("*.txt")});
        QVERIFY(files.size() >= 8);
        for (const QString &name : files)
            QVERIFY2(casesOf(folder.filePath(name)).size() > 3, qPrintable(name));
    }

    void theScriptDoesWhatItSays_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("expected");
        const QDir folder(QStringLiteral(SCRIPT_CASES));
        for (const QString &name : folder.entryList({QStringLiteral("*.txt")}))
            for (const Case &one : casesOf(folder.filePath(name)))
                QTest::newRow(qPrintable(name.chopped(4) + QStringLiteral(": ") + one.name))
                    << one.script << one.expected;
    }

    void theScriptDoesWhatItSays()
    {
        QFETCH(QString, script);
        QFETCH(QString, expected);
        QCOMPARE(outcomeOf(script).join(u'\n'), expected);
    }

private:
    struct Case
    {
        QString name;
        QString script;
        QString expected;
    };

    static QList<Case> casesOf(const QString &path)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("%s cannot be read", qPrintable(path));
        QList<Case> cases;
        QString *part = nullptr;
        const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
        for (const QString &line : lines) {
            if (line.startsWith(QStringLiteral("### "))) {
                cases.append({line.sliced(4), {}, {}});
                part = &cases.last().script;
            } else if (line == QStringLiteral("---") && !cases.isEmpty()) {
                part = &cases.last().expected;
            } else if (part != nullptr) {
                *part += line + u'\n';
            }
        }
        for (Case &one : cases) {
            while (one.script.endsWith(u'\n'))
                one.script.chop(1);
            one.expected = one.expected.trimmed();
        }
        return cases;
    }
};

QTEST_APPLESS_MAIN(tst_ScriptConformance)
#include "tst_ScriptConformance.moc"
