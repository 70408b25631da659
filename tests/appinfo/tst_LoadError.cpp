#include "appinfo/LoadError.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_LoadError : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theGuardedRoutinesHaveTheseNames()
    {
        QCOMPARE(LoadRoutines::formLoad(), u"Form.Load"_s);
        QCOMPARE(LoadRoutines::populateMemberListNames(), u"PopulateMemberListNames"_s);
    }

    void itsSixLinesStandApartByCarriageReturnsAlone()
    {
        const RuntimeError error(5, u"HFM"_s, u"The server is gone."_s);
        const Prompt expected{u"Tessaly"_s,
                              u"Error Encountered in PopulateMemberListNames:\r"
                              "Error#: 5\r"
                              "Error Desc: The server is gone.\r"
                              "Error Source: HFM\r"
                              "\r"
                              "Please stop and restart Tessaly"_s,
                              Prompt::Icon::Critical, Prompt::Buttons::Ok};
        QCOMPARE(loadError(u"PopulateMemberListNames"_s, error), expected);
    }
};

QTEST_APPLESS_MAIN(tst_LoadError)
#include "tst_LoadError.moc"
