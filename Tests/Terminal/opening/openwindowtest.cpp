#include "openwindowtest.h"

#include "layerwriter.h"
#include "productfile.h"

#include <QAbstractButton>
#include <QLabel>

void OpenWindowTest::init()
{
    TestBase::init();
    folder.reset(new QTemporaryDir);
    settings.reset(new QSettings(folder->filePath(QStringLiteral("settings.ini")), QSettings::IniFormat));
    broker.reset(new DataBroker);
    backend.reset(new PrescriptionBackend(broker.data()));
    machine.reset(new Machine(broker.data(), backend.data(), ProductFile::standard(), UnitSystem::Metric));
    adoption.reset(new ProductAdoption(machine.data()));
    requests.clear();
    startWindow();
}

void OpenWindowTest::startWindow()
{
    window.reset(new OpenWindow(machine.data(), adoption.data(), *settings));
    window->resize(1280, 728);
    connect(window.data(), &OpenWindow::wanted, this, [this](const OpenRequest &request) {
        requests.append(request);
        QMetaObject::invokeMethod(
            window.data(),
            [this, request] {
                const LoadReport report =
                    backend->loadAndWait({request.paths.first(), request.columns, request.units,
                                          machine->loadedProducts(), request.layer, request.task});
                window->finish(report);
            },
            Qt::QueuedConnection);
    });
}

void OpenWindowTest::cleanup()
{
    window.reset();
    adoption.reset();
    machine.reset();
    backend.reset();
    broker.reset();
    TestBase::cleanup();
}

QWidget *OpenWindowTest::find(const QString &name) const
{
    const QList<QWidget *> all = window->findChildren<QWidget *>(name);
    const auto seen = std::find_if(all.begin(), all.end(), [](const QWidget *any) { return any->isVisible(); });
    return seen == all.end() ? nullptr : *seen;
}

void OpenWindowTest::touch(const QString &name)
{
    QWidget *control = find(name);
    QVERIFY2(control != nullptr, qPrintable(name));
    QTest::mouseClick(control, Qt::LeftButton);
}

void OpenWindowTest::accept()
{
    touch(QStringLiteral("openAccept"));
    while (find(QStringLiteral("choice0")) != nullptr)
        touch(QStringLiteral("choice0"));
}

QString OpenWindowTest::text(const QString &name) const
{
    QWidget *control = find(name);
    if (const auto *label = qobject_cast<QLabel *>(control))
        return label->text().remove(QChar(0x200b));
    const auto *button = qobject_cast<QAbstractButton *>(control);
    return button != nullptr ? button->text() : QStringLiteral("(not seen)");
}

bool OpenWindowTest::waitFor(const char *name) const
{
    return QTest::qWaitFor([this, name] { return find(QLatin1String(name)) != nullptr; }, 20000);
}

QString OpenWindowTest::write(const QList<QByteArray> &columns, const QString &name)
{
    LayerSketch sketch;
    QList<QVariant> low;
    QList<QVariant> high;
    for (const QByteArray &column : columns) {
        sketch.fields.append({column.constData(), 1.0});
        low.append(1.0);
        high.append(2.0);
    }
    sketch.rows = {{squareText(10, 50, 0.001), low}, {squareText(10.001, 50, 0.001), high}};
    if (name.endsWith(QLatin1String(".geojson")))
        sketch.driver = "GeoJSON";
    const QString path = folder->filePath(name);
    return sketch.write(path) ? path : QString();
}

QString OpenWindowTest::writeTangle()
{
    LayerSketch sketch;
    sketch.fields = {{"rate", 1.0}};
    sketch.rows = {{scribbleText(1000), {1.0}}, {scribbleText(10), {1.0}}};
    const QString path = folder->filePath(QStringLiteral("tangle.shp"));
    return sketch.write(path) ? path : QString();
}
