#include "appinfo/ApplicationDimensions.h"
#include "support/FakeHfm.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_ApplicationDimensions : public QObject
{
    Q_OBJECT

private:
    /// The words of the dimensions that the option buttons stand for; "-" for none.
    using OfOption = std::optional<ApplicationDimension> (*)(int);
    static QString words(OfOption ofOption, int first, int last)
    {
        QStringList words;
        for (int index = first; index <= last; ++index) {
            const auto dimension = ofOption(index);
            words.append(dimension ? ApplicationDimensions::word(*dimension) : u"-"_s);
        }
        return words.join(u' ');
    }

private Q_SLOTS:
    void eachIsReadFromItsOwnAccessorInThisOrder()
    {
        FakeHfm hfm;
        const auto metadata = hfm.openSession()->GetMetadata();
        QStringList words;
        for (int i = 0; i < ApplicationDimensions::count; ++i) {
            const auto dimension = ApplicationDimension(i);
            const QString name =
                ApplicationDimensions::get(*metadata, dimension)->GetDimensionName();
            QCOMPARE(name, ApplicationDimensions::word(dimension));
            words.append(name);
        }
        QCOMPARE(words.join(u' '), u"Account Entity Custom1 Custom2 Custom3 Custom4 Scenario Year "
                                   "Period Value ICP View"_s);
    }

    void theOptionsOfTheCompareTabRunInTheReverseOrder()
    {
        QCOMPARE(words(ApplicationDimensions::ofCompareOption, -1, 12),
                 u"- Account Entity Custom1 Custom2 Custom3 Custom4 "
                 "Custom4 Custom3 Custom2 Custom1 Entity Account -"_s);
    }

    void theOptionsOfTheSharedMembersTabAreThese()
    {
        QCOMPARE(words(ApplicationDimensions::ofSharedMembersOption, -1, 6),
                 u"- Account Entity Custom1 Custom2 Custom3 Custom4 -"_s);
    }

    void theOptionsOfTheStatisticsTabAreThese()
    {
        QCOMPARE(words(ApplicationDimensions::ofStatisticsOption, 11, 18),
                 u"- Account Entity Custom1 Custom2 Custom3 Custom4 -"_s);
    }
};

QTEST_APPLESS_MAIN(tst_ApplicationDimensions)
#include "tst_ApplicationDimensions.moc"
