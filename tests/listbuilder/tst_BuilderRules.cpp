#include "listbuilder/BuilderRules.h"
#include "support/Errors.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_BuilderRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void captionsNameTheDimension()
    {
        QCOMPARE(BuilderRules::applicationPanel(u"Comma"_s), u"Application: Comma"_s);
        QCOMPARE(BuilderRules::dimensionCaption(u"ACCOUNT"_s), u"ACCOUNT Dimension"_s);
        QCOMPARE(BuilderRules::listsCaption(u"CUSTOM1"_s), u"CUSTOM1 Lists:"_s);
    }

    void entitiesCannotBePicked()
    {
        QVERIFY(!BuilderRules::isPickable(u"ENTITY"_s));
        for (const QString &name : {u"ACCOUNT"_s, u"ICP"_s, u"VALUE"_s, u"CUSTOM4"_s, QString()})
            QVERIFY(BuilderRules::isPickable(name));
    }

    void aListIsGeneratedOfAtLeastOneRowUnderAName()
    {
        QVERIFY(!BuilderRules::canGenerate(0, QString()));
        QVERIFY(!BuilderRules::canGenerate(0, u"Sales"_s));
        QVERIFY(!BuilderRules::canGenerate(1, QString()));
        QVERIFY(BuilderRules::canGenerate(1, u"Sales"_s));
        QVERIFY(BuilderRules::canGenerate(40'000, u"Sales"_s));
    }

    void aNameOfBlanksCounts() { QVERIFY(BuilderRules::canGenerate(1, u"  "_s)); }

    void resettingAnEmptySyntaxDoesNothing()
    {
        QVERIFY(!errorOf([] { BuilderRules::resetSyntax(QString()); }));
        QVERIFY(!errorOf([] { BuilderRules::resetSyntax(u""_s); }));
    }

    void resettingAnyOtherSyntaxIsATypeMismatch()
    {
        for (const QString &syntax : {u"Sub EnumMemberLists()"_s, u" "_s, u"\r\n"_s}) {
            const auto error = errorOf([&] { BuilderRules::resetSyntax(syntax); });
            QVERIFY(error);
            QCOMPARE(error->number(), TypeMismatch);
            QCOMPARE(error->description(), u"Type mismatch"_s);
        }
    }
};

QTEST_APPLESS_MAIN(tst_BuilderRules)
#include "tst_BuilderRules.moc"
