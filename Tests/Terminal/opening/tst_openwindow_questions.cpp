#include "layerwriter.h"
#include "openwindowtest.h"
#include "paintedtexts.h"
#include "touchbutton.h"

/// What the open window asks before it opens a file.
class TestOpenWindowQuestions : public OpenWindowTest {
    Q_OBJECT

private Q_SLOTS:
    void productAndUnitChosenAreLoaded();
    void anArchiveWithSeveralAsksForOne();
    void leavingTheQuestionForOneGoesOnOrBack();
    void openAsksForUnitsThatAreNotKnown();
    void aProductOfTheFileMayBeInAnyUnit();

private:
    /// An archive with two prescriptions in its folder "north".
    QString packTwo() const;
};

QString TestOpenWindowQuestions::packTwo() const
{
    const QString path = folder->filePath(QStringLiteral("fields.zip"));
    const QList<QPair<QString, QString>> entries{{QStringLiteral("north/a.geojson"), fixture("two-strips.geojson")},
                                                 {QStringLiteral("north/b.geojson"), fixture("three-zones.geojson")}};
    return packFiles(path, entries) ? path : QString();
}

void TestOpenWindowQuestions::productAndUnitChosenAreLoaded()
{
    window->preview({fixture("three-zones.geojson")});
    QVERIFY(waitFor("openAccept"));
    touch(QStringLiteral("columnRow0Product"));
    QCOMPARE(text(QStringLiteral("choice0")), QStringLiteral("None"));
    QCOMPARE(text(QStringLiteral("choice3")), QStringLiteral("3. Herbicide (L/ha)"));
    touch(QStringLiteral("choice0"));
    touch(QStringLiteral("columnRow1Unit"));
    touch(QStringLiteral("unitAmount5"));
    touch(QStringLiteral("unitArea1"));
    touch(QStringLiteral("unitAccept"));
    QCOMPARE(text(QStringLiteral("columnRow1Unit")), QStringLiteral("lb/ac"));
    touch(QStringLiteral("columnRow1"));
    QVERIFY(paintedTexts(*find(QStringLiteral("openLegend"))).contains(QStringLiteral("135.06")));
    accept();
    QTRY_VERIFY(!window->isVisible());
    QCOMPARE(requests.first().columns, QStringList({"", "FERT_KG_HA", "HERB_L_HA"}));
    QCOMPARE(requests.first().units, QStringList({"", "lb/ac", ""}));
    QCOMPARE(backend->maps().size(), 1);
    QCOMPARE(backend->maps().first().sources.first().unitFrom, RateSource::UnitFrom::Operator);
}

void TestOpenWindowQuestions::anArchiveWithSeveralAsksForOne()
{
    const QString archive = packTwo();
    window->preview({archive});
    QVERIFY(waitFor("choice1"));
    QCOMPARE(text(QStringLiteral("choice0")), QStringLiteral("north/a.geojson"));
    QCOMPARE(text(QStringLiteral("choice1")), QStringLiteral("north/b.geojson"));
    touch(QStringLiteral("choice1"));
    QVERIFY(waitFor("openAccept"));
    const QString name = QStringLiteral("fields.zip/north/b.geojson");
    QVERIFY2(paintedTexts(*window).contains(name), qPrintable(paintedTexts(*window).join('\n')));
    accept();
    QTRY_VERIFY(!window->isVisible());
    QCOMPARE(requests.first().paths, QStringList(archive + QStringLiteral("/north/b.geojson")));
    QCOMPARE(backend->maps().size(), 1);
    for (const char *place : {"placeOpen", "placeRecent"}) {
        window->showFiles();
        touch(QLatin1String(place));
        QCOMPARE(text(QStringLiteral("fileRow0")), name);
        QVERIFY(find(QStringLiteral("fileRow0"))->isEnabled());
    }
    // The prescriptions in a folder of the archive are named by the part of their path after that folder.
    window->preview({archive + QStringLiteral("/north")});
    QVERIFY(waitFor("choice1"));
    QCOMPARE(text(QStringLiteral("choice1")), QStringLiteral("b.geojson"));
}

void TestOpenWindowQuestions::leavingTheQuestionForOneGoesOnOrBack()
{
    const QString archive = packTwo();
    window->preview({archive, fixture("three-zones.geojson")});
    QVERIFY(waitFor("choice1"));
    touch(QStringLiteral("openBack"));
    QVERIFY(waitFor("openAccept"));
    QCOMPARE(text(QStringLiteral("columnRow0")), QStringLiteral("SEED_K_HA"));
    touch(QStringLiteral("openCancel"));
    window->preview({archive});
    QVERIFY(waitFor("choice1"));
    touch(QStringLiteral("openBack"));
    QVERIFY(find(QStringLiteral("placeHome")) != nullptr);
}

void TestOpenWindowQuestions::openAsksForUnitsThatAreNotKnown()
{
    const auto isCaution = [this](const char *name) {
        return static_cast<TouchButton *>(find(QLatin1String(name)))->isCaution();
    };
    window->preview({fixture("two-strips.geojson")});
    QVERIFY(waitFor("openAccept"));
    QVERIFY(isCaution("columnRow0Unit") && isCaution("columnRow1Unit"));
    touch(QStringLiteral("openAccept"));
    QCOMPARE(text(QStringLiteral("choice0")), QStringLiteral("Open as k/ha, kg/ha"));
    QCOMPARE(text(QStringLiteral("choice1")), QStringLiteral("Choose the unit of A"));
    touch(QStringLiteral("choice1"));
    touch(QStringLiteral("unitAmount2"));
    touch(QStringLiteral("unitArea0"));
    touch(QStringLiteral("unitAccept"));
    // The other column is asked about next.
    QCOMPARE(text(QStringLiteral("choice0")), QStringLiteral("Open as kg/ha"));
    QCOMPARE(text(QStringLiteral("choice1")), QStringLiteral("Choose the unit of B"));
    QVERIFY(requests.isEmpty());
    touch(QStringLiteral("openBack"));
    QVERIFY(!isCaution("columnRow0Unit") && isCaution("columnRow1Unit"));
    // Only "Open" opens the file.
    touch(QStringLiteral("columnRow0Unit"));
    touch(QStringLiteral("unitAccept"));
    QVERIFY(find(QStringLiteral("openAccept")) != nullptr);
    accept();
    QTRY_VERIFY(!window->isVisible());
    QCOMPARE(requests.first().units, QStringList({"million/ha", "kg/ha"}));
    // What the operator has answered once is not asked again.
    window->preview({fixture("two-strips.geojson")});
    QVERIFY(waitFor("openAccept"));
    QVERIFY(!isCaution("columnRow1Unit"));
}

void TestOpenWindowQuestions::aProductOfTheFileMayBeInAnyUnit()
{
    window->preview({fixture("three-zones.geojson")});
    QVERIFY(waitFor("openAccept"));
    touch(QStringLiteral("columnRow1Unit"));
    QVERIFY(find(QStringLiteral("unitOthers")) == nullptr);
    touch(QStringLiteral("openBack"));
    touch(QStringLiteral("openBack"));
    adoption->adoptFromNextFile();
    window->preview({write({"Dose"}, QStringLiteral("dose.geojson"))});
    QVERIFY(waitFor("openAccept"));
    touch(QStringLiteral("columnRow0Unit"));
    QCOMPARE(text(QStringLiteral("unitAmount0")), QStringLiteral("kg"));
    touch(QStringLiteral("unitOthers"));
    QCOMPARE(text(QStringLiteral("unitAmount0")), QStringLiteral("L"));
    touch(QStringLiteral("unitAmount0"));
    touch(QStringLiteral("unitArea0"));
    touch(QStringLiteral("unitAccept"));
    QCOMPARE(text(QStringLiteral("columnRow0Unit")), QStringLiteral("L/ha"));
    accept();
    QTRY_VERIFY(!window->isVisible());
    QCOMPARE(requests.first().units.first(), QStringLiteral("L/ha"));
    QCOMPARE(requests.first().columnProducts->first().kind, DbGroupProductGroupInfo::VolumeRate);
}

RXMAP_TEST(TestOpenWindowQuestions, Widgets)
#include "tst_openwindow_questions.moc"
