#include "FaultSweep.h"

#include <QApplication>
#include <QDirIterator>
#include <QRegularExpression>
#include <QTest>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// The names of the operations that an HFM client offers, read from its headers.
QSet<QString> offeredOperations()
{
    static const QRegularExpression declaration(u"^ +virtual [^~].*?\\b(\\w+)\\("_s,
                                                QRegularExpression::MultilineOption);
    QSet<QString> names;
    QDirIterator each(QStringLiteral(TESSALY_HFM_HEADERS), {u"*.h"_s}, QDir::Files);
    while (each.hasNext()) {
        QFile header(each.next());
        if (!header.open(QIODevice::ReadOnly))
            continue;
        auto match = declaration.globalMatch(QString::fromUtf8(header.readAll()));
        while (match.hasNext())
            names.insert(match.next().captured(1));
    }
    return names;
}

} // namespace

/// Every call that a journey makes fails once. However that is, the program ends in order or goes
/// on where it is to go on, and has touched nothing.
class tst_EveryFault : public QObject
{
    Q_OBJECT

private:
    QList<Journey> mJourneys = everyJourney();
    int mFaults = 0;
    int mSpreadsheetSteps = 0;
    QMap<Ending, int> mEndings;
    QMap<QString, int> mOperations;

    /// The figures; as a message of the test they would drown in the platform's warnings.
    void print() const
    {
        const QString text =
            u"%1 faults in %2 journeys, in %3 operations and %4 steps of the spreadsheet: %5 ended "
            "with a run-time error and exit code 1, %6 with the messages of the start, %7 with the "
            "message of the loading; after %8 all went on without a parent's mark."_s.arg(mFaults)
                .arg(mJourneys.size())
                .arg(mOperations.size())
                .arg(mSpreadsheetSteps)
                .arg(mEndings[Ending::RunTimeError])
                .arg(mEndings[Ending::StartUpMessage])
                .arg(mEndings[Ending::LoadMessage])
                .arg(mEndings[Ending::WithoutMark]);
        std::puts(qPrintable(text));
    }

    void add(const FaultSweep &sweep)
    {
        mFaults += sweep.faults();
        mSpreadsheetSteps += sweep.spreadsheetSteps();
        for (auto ending = sweep.endings().begin(); ending != sweep.endings().end(); ++ending)
            mEndings[ending.key()] += ending.value();
        for (auto each = sweep.operations().begin(); each != sweep.operations().end(); ++each)
            mOperations[each.key()] += each.value();
    }

private Q_SLOTS:
    void initTestCase() { QApplication::setQuitOnLastWindowClosed(false); }

    void everyFaultEndsInOrder_data()
    {
        QTest::addColumn<int>("journey");
        for (int i = 0; i < mJourneys.size(); ++i)
            QTest::newRow(mJourneys[i].name) << i;
    }
    void everyFaultEndsInOrder()
    {
        QFETCH(const int, journey);
        FaultSweep sweep(mJourneys[journey]);
        const QStringList problems = sweep.run();
        QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u'\n')));
        QVERIFY(sweep.faults() > 0);
        add(sweep);
    }

    void everyOperationWasMadeToFailInTheEnd()
    {
        QSet<QString> never = offeredOperations();
        QVERIFY(never.size() > 80);
        for (auto each = mOperations.begin(); each != mOperations.end(); ++each)
            QVERIFY2(never.remove(each.key()), qPrintable(each.key()));
        QVERIFY2(never.isEmpty(), qPrintable(QStringList(never.begin(), never.end()).join(u' ')));
        QVERIFY(mSpreadsheetSteps > 0);
        for (const Ending ending : {Ending::RunTimeError, Ending::StartUpMessage,
                                    Ending::LoadMessage, Ending::WithoutMark})
            QVERIFY(mEndings[ending] > 0);
        print();
    }
};

QTEST_MAIN(tst_EveryFault)
#include "tst_EveryFault.moc"
