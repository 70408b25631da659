#include "Reading.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The record of an account with `customs` custom dimensions; each field tells which it is.
QByteArrayList accountFields(int customs, bool isLong)
{
    QByteArrayList fields = {"BS", "ASSET", "Y", "Y", "R", "PLUG"};
    for (int k = 1; k <= customs; ++k)
        fields.append("top" + QByteArray::number(k));
    fields += QByteArrayList{"7", "Y"};
    for (int k = 1; k <= customs; ++k)
        fields.append(k % 2 ? "Y" : "N");
    fields += QByteArrayList{"one", "two", "three", "tags", "SC", "[ICP Top]", "Y"};
    if (isLong)
        fields += QByteArrayList{"calc", "group"};
    return fields;
}

QByteArray customOrder(int customs)
{
    QByteArrayList names;
    for (int k = 1; k <= customs; ++k)
        names.append("Dim" + QByteArray::number(k));
    return "!CUSTOM_ORDER=" + names.join(';') + '\n';
}

/// A file of two accounts, the first with these fields before its default parent.
Reading readAccount(const QByteArray &before, const QByteArrayList &fields)
{
    return readText(before + "!MEMBERS=Account\n" + fields.join(';') +
                    ";DefaultParent=TOP;English=The BS\n"
                    "TOP;GROUPLABEL;DefaultParent=#root;English=The top\n"
                    "!HIERARCHIES=Account\n;TOP\nTOP;BS\n");
}

} // namespace

/// The fields of accounts.
class tst_AccountRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyLayoutIsToldByTheNumberOfCustomsAndOfFields_data()
    {
        QTest::addColumn<int>("customs");
        QTest::addColumn<bool>("isLong");
        for (int customs = 1; customs <= 6; ++customs) {
            QTest::addRow("15 + 2 * %d", customs) << customs << false;
            QTest::addRow("17 + 2 * %d", customs) << customs << true;
        }
    }

    void everyLayoutIsToldByTheNumberOfCustomsAndOfFields()
    {
        QFETCH(int, customs);
        QFETCH(bool, isLong);
        const QByteArrayList fields = accountFields(customs, isLong);
        QCOMPARE(fields.size(), (isLong ? 17 : 15) + 2 * customs);
        const Reading reading = readAccount(customOrder(customs), fields);
        const auto account = reading.account();
        QCOMPARE(account->GetMemberDescription(0, 0), u"The BS"_s);
        QCOMPARE(account->GetDefaultParentLabel(0), u"TOP"_s);
        const auto view = account->accountAttributes();
        QCOMPARE(view->GetAccountType(0), 2);
        QVERIFY(view->GetAccountIsCalculated(0));
        QVERIFY(view->GetAccountIsConsolidated(0));
        QVERIFY(view->GetAccountIsLID(0));
        QCOMPARE(view->GetAccountIsICP(0), 1);
        QCOMPARE(view->GetAccountDecimalPlaces(0), qint16(7));
        QCOMPARE(view->GetAccountUserDefined1(0), u"one"_s);
        QCOMPARE(view->GetAccountUserDefined2(0), u"two"_s);
        QCOMPARE(view->GetAccountUserDefined3(0), u"three"_s);
        QCOMPARE(reading.session()->GetSecurity()->GetSecurityClassName(
                     view->GetAccountSecurityClassId(0)),
                 u"SC"_s);
        compareCustoms(reading, customs);
    }

    void withoutACustomOrderThereAreFourCustoms()
    {
        const Reading reading = readAccount({}, accountFields(4, true));
        QCOMPARE(reading.account()->accountAttributes()->GetAccountUserDefined3(0), u"three"_s);
        compareCustoms(reading, 4);
    }

    void everyAccountTypeHasItsCode_data()
    {
        QTest::addColumn<int>("code");
        QTest::newRow("REVENUE") << 0;
        QTest::newRow("INCOME") << 0;
        QTest::newRow("EXPENSE") << 1;
        QTest::newRow("ASSET") << 2;
        QTest::newRow("LIABILITY") << 3;
        QTest::newRow("BALANCE") << 4;
        QTest::newRow("FLOW") << 5;
        QTest::newRow("NONFINANCIAL") << 6;
        QTest::newRow("CURRENCYRATE") << 7;
        QTest::newRow("SYSTEM") << 8;
        QTest::newRow("TEXT") << 9;
        QTest::newRow("GROUPLABEL") << 10;
        QTest::newRow("BALANCERECURRING") << 11;
        QTest::newRow("DYNAMIC") << 12;
        QTest::newRow("asset") << 2;
        QTest::newRow("ASSETS") << -1;
        QTest::newRow("") << -1;
        QTest::newRow("-") << -1;
    }

    void everyAccountTypeHasItsCode()
    {
        QFETCH(int, code);
        const Reading reading = readAccount({}, {"BS", QTest::currentDataTag(), "N"});
        QCOMPARE(reading.account()->accountAttributes()->GetAccountType(0), code);
        if (code >= 0)
            QCOMPARE(reading.warnings(), QStringList());
        else
            QVERIFY(reading.warnsOnlyOf(2, {QString::fromLatin1(QTest::currentDataTag())}));
    }

    void intercompanyIsYesNoOrRestricted_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("warnings");
        QTest::newRow("Y") << -1 << 0;
        QTest::newRow("N") << 0 << 0;
        QTest::newRow("R") << 1 << 0;
        QTest::newRow("") << 0 << 0;
        QTest::newRow("X") << 0 << 1;
    }

    void intercompanyIsYesNoOrRestricted()
    {
        QFETCH(int, value);
        QFETCH(int, warnings);
        const Reading reading = readAccount({}, {"BS", "ASSET", "N", "N", QTest::currentDataTag()});
        QCOMPARE(reading.account()->accountAttributes()->GetAccountIsICP(0), value);
        QCOMPARE(reading.warnings().size(), warnings);
    }

    void decimalPlacesThatAreEmptyAreNoneAndReadAsFarAsTheyAreANumber_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<bool>("isWrong");
        QTest::newRow("") << 0 << false;
        QTest::newRow("0") << 0 << false;
        QTest::newRow("9") << 9 << false;
        QTest::newRow("2x") << 2 << true;
        QTest::newRow("two") << 0 << true;
        QTest::newRow("99999999999999999999") << 0 << true;
    }

    void decimalPlacesThatAreEmptyAreNoneAndReadAsFarAsTheyAreANumber()
    {
        QFETCH(int, value);
        QFETCH(bool, isWrong);
        QByteArrayList fields = accountFields(4, true);
        for (int top = 6; top < 10; ++top)
            fields[top] = "";
        fields[10] = QTest::currentDataTag();
        const Reading reading = readAccount({}, fields);
        QCOMPARE(int(reading.account()->accountAttributes()->GetAccountDecimalPlaces(0)), value);
        QCOMPARE(reading.warnings().size(), isWrong ? 1 : 0);
        QCOMPARE(reading.warnsOf(2, {QString::fromLatin1(QTest::currentDataTag())}), isWrong);
    }

    void missingFieldsAreEmpty()
    {
        const QByteArrayList all = accountFields(4, true);
        for (qsizetype count = 2; count < all.size(); ++count) {
            const Reading reading = readAccount({}, all.first(count));
            const auto view = reading.account()->accountAttributes();
            QCOMPARE(view->GetAccountType(0), 2);
            QCOMPARE(view->GetAccountIsICP(0), count > 4 ? 1 : 0);
            QCOMPARE(view->GetAccountTopCustom4(0) >= 0, count > 9);
            QCOMPARE(int(view->GetAccountDecimalPlaces(0)), count > 10 ? 7 : 0);
            QCOMPARE(view->GetAccountCustom3AggEnabled(0), count > 14);
            QCOMPARE(view->GetAccountUserDefined3(0), count > 18 ? u"three"_s : QString());
            QCOMPARE(view->GetAccountSecurityClassId(0) != hfm::noClass, count > 20);
            QCOMPARE(reading.account()->GetMemberDescription(0, 0), u"The BS"_s);
            const int missingTops = int(std::clamp<qsizetype>(count - 6, 0, 4));
            QCOMPARE(reading.warnings().size(), missingTops);
        }
    }

    void anEmptyTopMemberIsMinusOne()
    {
        const Reading reading = readAccount({}, {"BS", "ASSET", "N", "N", "N", "", "", "[None]"});
        const auto view = reading.account()->accountAttributes();
        QCOMPARE(view->GetAccountTopCustom1(0), -1);
        QCOMPARE(view->GetAccountTopCustom2(0), reading.custom2()->GetMemberId(u"[None]"_s));
        QCOMPARE(view->GetAccountTopCustom3(0), -1);
        QCOMPARE(view->GetAccountTopCustom4(0), -1);
        QCOMPARE(reading.warnings(), QStringList());
    }

private:
    static void compareCustoms(const Reading &reading, int customs)
    {
        const auto metadata = reading.metadata();
        const auto view = reading.account()->accountAttributes();
        const auto top = [](hfm::Dimension &dimension, hfm::MemberId member) {
            return member < 0 ? QString() : dimension.GetMemberLabel(member);
        };
        const auto named = [&](int k) {
            return customs >= k ? QStringLiteral("top%1").arg(k) : QString();
        };
        QCOMPARE(top(*metadata->GetCustom1Dimension(), view->GetAccountTopCustom1(0)), named(1));
        QCOMPARE(top(*metadata->GetCustom2Dimension(), view->GetAccountTopCustom2(0)), named(2));
        QCOMPARE(top(*metadata->GetCustom3Dimension(), view->GetAccountTopCustom3(0)), named(3));
        QCOMPARE(top(*metadata->GetCustom4Dimension(), view->GetAccountTopCustom4(0)), named(4));
        QCOMPARE(view->GetAccountCustom1AggEnabled(0), true);
        QCOMPARE(view->GetAccountCustom2AggEnabled(0), false);
        QCOMPARE(view->GetAccountCustom3AggEnabled(0), customs >= 3);
        QCOMPARE(view->GetAccountCustom4AggEnabled(0), false);
        // The top members that no dimension has are the only thing amiss.
        QCOMPARE(reading.warnings().size(), std::min(customs, 4));
    }
};

QTEST_APPLESS_MAIN(tst_AccountRecords)
#include "tst_AccountRecords.moc"
