#include "runtime/RuntimeError.h"

#include <QTest>

#include <new>
#include <stdexcept>

class tst_RuntimeError : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyNumberHasItsUsualDescription_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("description");
        const auto row = [](int number, const char *description) {
            QTest::addRow("%d", number) << number << QString::fromLatin1(description);
        };
        row(5, "Invalid procedure call or argument");
        row(6, "Overflow");
        row(7, "Out of memory");
        row(9, "Subscript out of range");
        row(11, "Division by zero");
        row(13, "Type mismatch");
        row(14, "Out of string space");
        row(53, "File not found");
        row(61, "Disk full");
        row(70, "Permission denied");
        row(75, "Path/File access error");
        row(76, "Path not found");
        row(91, "Object variable or With block variable not set");
        row(429, "ActiveX component can't create object");
        row(1004, "Application-defined or object-defined error");
        row(23001, "Application-defined or object-defined error");
        row(0, "Application-defined or object-defined error");
        row(-2147467259, "Application-defined or object-defined error");
    }
    void everyNumberHasItsUsualDescription()
    {
        QFETCH(int, number);
        QFETCH(QString, description);
        const RuntimeError error(number);
        QCOMPARE(error.number(), number);
        QCOMPARE(error.source(), QStringLiteral("Tessaly"));
        QCOMPARE(error.description(), description);
        QCOMPARE(RuntimeError::usualDescription(number), description);
    }

    void theNamesAreTheUsualNumbers()
    {
        QCOMPARE(int(InvalidProcedureCall), 5);
        QCOMPARE(int(Overflow), 6);
        QCOMPARE(int(OutOfMemory), 7);
        QCOMPARE(int(SubscriptOutOfRange), 9);
        QCOMPARE(int(DivisionByZero), 11);
        QCOMPARE(int(TypeMismatch), 13);
        QCOMPARE(int(OutOfStringSpace), 14);
        QCOMPARE(int(FileNotFound), 53);
        QCOMPARE(int(DiskFull), 61);
        QCOMPARE(int(PermissionDenied), 70);
        QCOMPARE(int(PathFileAccessError), 75);
        QCOMPARE(int(PathNotFound), 76);
        QCOMPARE(int(ObjectVariableNotSet), 91);
        QCOMPARE(int(CannotCreateObject), 429);
    }

    void sourceAndDescriptionAreThoseGiven()
    {
        const RuntimeError error(23001, QStringLiteral("Tessaly (Main)"),
                                 QStringLiteral("Invalid Version Returned from GetVersion()"));
        QCOMPARE(error.number(), 23001);
        QCOMPARE(error.source(), QStringLiteral("Tessaly (Main)"));
        QCOMPARE(error.description(), QStringLiteral("Invalid Version Returned from GetVersion()"));
    }

    void anEmptyDescriptionIsTheUsualOne()
    {
        const RuntimeError error(13, QStringLiteral("HFM"), QString());
        QCOMPARE(error.source(), QStringLiteral("HFM"));
        QCOMPARE(error.description(), QStringLiteral("Type mismatch"));
    }

    void itIsAStandardExceptionToo()
    {
        try {
            throw RuntimeError(75, QStringLiteral("Tessaly"), QString::fromUtf16(u"caf\u00E9"));
        } catch (const std::exception &error) {
            QCOMPARE(error.what(), "caf\xC3\xA9");
        }
    }

    void anErrorOverSomethingNamesIt()
    {
        const RuntimeError error = RuntimeError::naming(PathNotFound, QStringLiteral("/home/%1"));
        QCOMPARE(error.number(), 76);
        QCOMPARE(error.source(), QStringLiteral("Tessaly"));
        QCOMPARE(error.description(), QStringLiteral("Path not found: /home/%1"));
    }

    void whateverIsCaughtIsAnError()
    {
        const auto caught = [](const auto &thrown) {
            try {
                throw thrown;
            } catch (...) {
                const RuntimeError error = RuntimeError::caught();
                return QString::number(error.number()) + QLatin1Char(' ') + error.description();
            }
        };
        QCOMPARE(caught(RuntimeError::naming(DiskFull, QStringLiteral("/x"))),
                 QStringLiteral("61 Disk full: /x"));
        QCOMPARE(caught(std::bad_alloc()), QStringLiteral("7 Out of memory"));
        QCOMPARE(caught(std::runtime_error("odd")), QStringLiteral("5 odd"));
        QCOMPARE(caught(1), QStringLiteral("5 Invalid procedure call or argument"));
    }
};

QTEST_APPLESS_MAIN(tst_RuntimeError)
#include "tst_RuntimeError.moc"
