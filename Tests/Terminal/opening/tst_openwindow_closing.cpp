#include "openwindowtest.h"
#include "paths.h"

#include <QTimer>

/// How the open window is left without opening a file: refused, or cancelled.
class TestOpenWindowClosing : public OpenWindowTest {
    Q_OBJECT

private Q_SLOTS:
    void whatIsRefusedIsSaidWithItsReason_data();
    void whatIsRefusedIsSaidWithItsReason();
    void readingIsCancelled();
    void loadingIsCancelled();
};

void TestOpenWindowClosing::whatIsRefusedIsSaidWithItsReason_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    QTest::newRow("gone") << "/no/such.shp"
                          << "/no/such.shp: there is no such file";
    QTest::newRow("no prescription") << sourcePath("Tests/fixtures/README.md") << "is none of the formats";
    QTest::newRow("a folder") << sourcePath("Tests/fixtures") << "is a folder";
}

void TestOpenWindowClosing::whatIsRefusedIsSaidWithItsReason()
{
    QFETCH(QString, path);
    QFETCH(QString, reason);
    window->preview({fixture("overlap.geojson")});
    QVERIFY(waitFor("openAccept"));
    accept();
    QTRY_VERIFY(!window->isVisible());
    window->preview({path});
    QVERIFY(waitFor("openMessage"));
    QVERIFY2(text(QStringLiteral("openMessage")).contains(reason), qPrintable(text(QStringLiteral("openMessage"))));
    QCOMPARE(backend->maps().size(), 1);
    touch(QStringLiteral("openBack"));
    QVERIFY(waitFor("fileRow0"));
}

void TestOpenWindowClosing::readingIsCancelled()
{
    window->preview({writeTangle()});
    QVERIFY(find(QStringLiteral("openProgress")) != nullptr);
    QVERIFY(window->isBusy());
    QTest::qWait(200);
    touch(QStringLiteral("openCancel"));
    QTRY_VERIFY(!window->isBusy());
    QTRY_VERIFY(find(QStringLiteral("placeRecent")) != nullptr);
    // The next file is not mistaken for the cancelled one.
    window->preview({fixture("overlap.geojson")});
    QVERIFY(waitFor("openAccept"));
}

void TestOpenWindowClosing::loadingIsCancelled()
{
    const QString path = write({"UREA_KG_HA"});
    window->preview({path});
    QVERIFY(waitFor("openAccept"));
    // Behind the operator's back, the file is replaced by one that takes long to load.
    const QString tangle = writeTangle();
    for (const char *ending : {".shp", ".shx"}) {
        QFile::remove(QString(path).replace(QLatin1String(".shp"), QLatin1String(ending)));
        QVERIFY(QFile::copy(QString(tangle).replace(QLatin1String(".shp"), QLatin1String(ending)),
                            QString(path).replace(QLatin1String(".shp"), QLatin1String(ending))));
    }
    bool wasLoading = false;
    QTimer::singleShot(500, window.data(), [this, &wasLoading] {
        wasLoading = backend->isLoading();
        touch(QStringLiteral("openCancel"));
    });
    accept();
    QTRY_VERIFY(wasLoading);
    QVERIFY(waitFor("openAccept"));
    QVERIFY(backend->maps().isEmpty());
    QVERIFY(!window->isBusy());
}

RXMAP_TEST(TestOpenWindowClosing, Widgets)
#include "tst_openwindow_closing.moc"
