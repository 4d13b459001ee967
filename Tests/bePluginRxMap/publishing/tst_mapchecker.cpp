#include "mapchecker.h"
#include "testbase.h"

#include <QEventLoop>

/// What is told of a check that fails.
class MapCheckerTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aCheckThatFailsIsToldWithItsReason();
    void theNextMapIsCheckedAfterAFailure();

private:
    /// A square with one rate.
    static CheckInput square()
    {
        const std::vector<PlanePolygon> polygons{{{{0, 0}, {50, 0}, {50, 50}, {0, 50}}, {}, 0}};
        const auto chain = std::make_shared<PolygonChain>(polygons, std::vector<float>{100.0F}, size_t(1));
        return {chain, {0}, {}, {{QStringLiteral("rate"), QStringLiteral("kg/ha"), 1.0}}};
    }
    /// Its rates are looked at last, and there is no column to look them up in.
    static CheckInput broken()
    {
        CheckInput input = square();
        input.columns.clear();
        return input;
    }
};

void MapCheckerTest::aCheckThatFailsIsToldWithItsReason()
{
    QCOMPARE(MapChecker::check(square(), 12.0, LoadControl())->problem, QString());
    const auto outcome = MapChecker::check(broken(), 12.0, LoadControl());
    QVERIFY(outcome.has_value());
    QVERIFY2(outcome->problem.startsWith(QStringLiteral("cannot be checked: ")), qPrintable(outcome->problem));
    QVERIFY(outcome->findings.isEmpty());
}

void MapCheckerTest::theNextMapIsCheckedAfterAFailure()
{
    QStringList told;
    QEventLoop loop;
    QObject context;
    MapChecker checker(&context, [&](const QString &group, const MapChecker::Outcome &outcome) {
        told.append(group + (outcome.problem.isEmpty() ? QStringLiteral(" good") : QStringLiteral(" failed")));
        if (told.size() == 2)
            loop.quit();
    });
    checker.start(QStringLiteral("a"), broken(), 12.0);
    checker.start(QStringLiteral("b"), square(), 12.0);
    loop.exec();
    QCOMPARE(told, QStringList({QStringLiteral("a failed"), QStringLiteral("b good")}));
}

RXMAP_TEST(MapCheckerTest, Core)
#include "tst_mapchecker.moc"
