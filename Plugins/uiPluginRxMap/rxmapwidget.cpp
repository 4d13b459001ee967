#include "rxmapwidget.h"

#include "rxmapwidgetdialog01.h"

#include "Framework/databroker.h"
#include "Framework/orvikbuttonqgw.h"

#include <QPointer>
#include <QVariant>

namespace {

constexpr int enabledImage = 0;
constexpr int disabledImage = 1;
const QString defaultFamily = QStringLiteral("Liberation Sans");

} // namespace

RxMapWidget::RxMapWidget(QString pluginName, QString widgetName, int x, int y, QDir imageDir, QPointF position,
                         DataBroker *broker)
    : UiGWidget(pluginName, widgetName, x, y, imageDir, position, broker, false)
{
    QVariant family = broker == nullptr ? QVariant(defaultFamily) : QVariant();
    if (broker != nullptr)
        broker->getIniSetting("main.general.font", family, defaultFamily, true);
    font.setFamily(family.toString());
    font.setWeight(50);
    font.setPointSize(15);

    const QStringList images{QStringLiteral("RxOptions_11_01.png"), QStringLiteral("RxOptionsDisable_11_01.png")};
    button = new OrvikButtonQgw(0, imageDir, images, QPointF(0, 0), this);
    button->setObjectName(QStringLiteral("rxOptions"));
    connect(button, SIGNAL(longTouch(int)), this, SLOT(onLongTouch(int)));
    connect(button, SIGNAL(buttonReleased(int)), this, SLOT(onButtonReleased(int)));
    const bool mapLoaded = broker != nullptr && !broker->findGroup(QStringLiteral("rxMap.*"), true, false).isEmpty();
    button->setCurrentImage(mapLoaded ? enabledImage : disabledImage);
    resize(button->size());
    setPos(position);
}

RxMapWidget::~RxMapWidget() = default;

void RxMapWidget::pageShown()
{
    // By design: empty; the button keeps the image that it was made with.
}

void RxMapWidget::onLongTouch(int /*id*/)
{
    if (button->currentImage() == disabledImage)
        return;
    // The host may close the page, and this widget with it, while the dialog runs or when it hears of the popup.
    const QPointer<RxMapWidget> self(this);
    popupIsActive(true);
    if (!self)
        return;
    QDir images = imageDir();
    const QPointer<RxMapWidgetDialog01> dialog = new RxMapWidgetDialog01(dataBroker(), images, nullptr);
    dialog->exec();
    delete dialog;
    if (!self)
        return;
    popupIsActive(false);
    if (self)
        update(QRectF());
}

void RxMapWidget::onButtonReleased(int /*id*/)
{
    // By design: nothing; only a long touch opens the dialog.
}
