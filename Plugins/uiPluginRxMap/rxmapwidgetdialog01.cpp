// Construction and layout of the dialog, and what Done writes. What the controls do meanwhile is in
// rxmapwidgetdialog01_editing.cpp.

#include "rxmapwidgetdialog01.h"

#include "rxmapsettingsrules.h"

#include "Framework/databroker.h"
#include "Framework/dbgroupqmlunitsconverter.h"
#include "Framework/orvikbutton.h"
#include "Framework/orvikimage.h"
#include "Framework/orviklineedit.h"
#include "bePluginRxMap/dbgrouprxmap.h"

#include <QLabel>
#include <QPointer>
#include <QVariant>

namespace {

/// Writes every group's share of the mappings, then the settings, to the first group alone. All that it needs is
/// copied: a listener of a write may delete the dialog, and the rest is written all the same.
void writeBack(DataBroker *broker, const QList<QPointer<DbGroupRxMap>> groups,
               const QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING> mappings,
               const QPointer<DbGroupRxMap> settingsGroup, const QList<OrvikTypes::RX_SETTINGS> settings)
{
    // By design: written without a token; the plug-in holds none, so a write-protected property refuses.
    int taken = 0;
    for (const QPointer<DbGroupRxMap> &group : groups) {
        // Nobody knows any more how many of the mappings belonged to a deleted group.
        if (group.isNull())
            break;
        const auto held = group->getRateCalMappings();
        group->setRateCalMappings(RxMapSettingsRules::shareOf(mappings, taken, held), nullptr);
        taken += held.size();
    }
    if (settingsGroup == nullptr)
        return;
    const auto old = settingsGroup->getSettings();
    settingsGroup->setSettings(settings, nullptr);
    if (RxMapSettingsRules::needsReInit(old, settings))
        broker->setProperty("quillSpan", "reInit", QVariant(true));
}

} // namespace

RxMapWidgetDialog01::RxMapWidgetDialog01(DataBroker *givenBroker, QDir &givenImageDir, QWidget *parent)
    : QDialog(parent)
    , broker(givenBroker)
    , imageDir(givenImageDir)
{
    setObjectName(QStringLiteral("rxMapSettings"));
    setWindowFlags(Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    unitsConverter =
        qobject_cast<DbGroupQmlUnitsConverter *>(broker->getGroup(QStringLiteral("QmlUnitsConverter"), false));
    setupWindow();
    setupControls();
    readGroups();
    selectInitialProduct();
    testForZeroSpeed();
}

RxMapWidgetDialog01::~RxMapWidgetDialog01() = default;

void RxMapWidgetDialog01::setupWindow()
{
    QVariant family;
    broker->getIniSetting("main.general.font", family, QVariant("Liberation Sans"), true);
    dialogFont.setFamily(family.toString());
    dialogFont.setWeight(50);
    dialogFont.setPixelSize(22);

    auto *background = new OrvikImage(0, imageDir, QStringLiteral("RxOptionsPopup.png"), QPoint(0, 0), this);
    resize(background->width(), background->height());
    screenSize = broker->getSize();
    // Without its picture the dialog has no size; it would never come up then, and neither Done nor Escape could end
    // it.
    if (size().isEmpty())
        resize(screenSize.expandedTo(QSize(1, 1)));
    move((screenSize.width() - width()) / 2, (screenSize.height() - height()) / 2);

    const QStringList doneImages{QStringLiteral("doneButton.png"), QStringLiteral("Cancel.png")};
    doneButton = new OrvikButton(0, imageDir, doneImages, QPoint(width() - 85, 5), this, false);
    doneButton->setObjectName(QStringLiteral("doneButton"));
    connect(doneButton, SIGNAL(buttonReleased(int)), this, SLOT(doneButtonReleased(int)));

    titlePointSize = 26;
    subtitlePointSize = 22;
    captionPointSize = 16;
    largePointSize = 22;
    smallPointSize = 14;
    largeFont = dialogFont;
    largeFont.setPointSize(largePointSize);
}

void RxMapWidgetDialog01::setupControls()
{
    addCaption(tr("Rx Map Settings"), QPoint(143, 50), titlePointSize, this);
    zeroRateShutoffLabel = addCaption(tr("Enable Zero Rate Shutoff"), QPoint(201, 107), captionPointSize, this);
    zeroRateShutoffBox = addCheckBox(ZeroRateShutoffId, QPoint(133, 97), "zeroRateShutoffBox");
    applyToAllLabel = addCaption(tr("Apply to all products"), QPoint(269, 171), captionPointSize, this);
    applyToAllBox = addCheckBox(ApplyToAllId, QPoint(201, 161), "applyToAllBox");
    lookAheadLabel = addCaption(tr("On look-ahead (seconds)"), QPoint(133, 345), captionPointSize, this);
    lookAheadEdit = addLineEdit(LookAheadId, QPoint(381, 330), "lookAheadEdit");
    lookAheadEdit->setNumericSizeLimits(3, 1);
    defaultRateEdit = addLineEdit(DefaultRateId, QPoint(381, 399), "defaultRateEdit");
    defaultRateEdit->setNumericRange(0.0, 5000.0, 1);
    defaultRateLabel = addCaption(getDefaultRateSettings(), QPoint(133, 414), captionPointSize, this);
    defaultRateLabel->setFixedWidth(247);
    notUnderVraLabel =
        addCaption(tr("This product node is not under VRA control."), QPoint(133, 110), captionPointSize, this);
    setRed(notUnderVraLabel);
    vehicleMovingLabel =
        addCaption(tr("Changes not permitted while vehicle is moving."), QPoint(133, 725), captionPointSize, this);
    setRed(vehicleMovingLabel);

    zeroRateShutoffLabel->setObjectName(QStringLiteral("zeroRateShutoffLabel"));
    applyToAllLabel->setObjectName(QStringLiteral("applyToAllLabel"));
    lookAheadLabel->setObjectName(QStringLiteral("lookAheadLabel"));
    defaultRateLabel->setObjectName(QStringLiteral("defaultRateLabel"));
    notUnderVraLabel->setObjectName(QStringLiteral("notUnderVraLabel"));
    vehicleMovingLabel->setObjectName(QStringLiteral("vehicleMovingLabel"));
}

QLabel *RxMapWidgetDialog01::addCaption(QString text, QPoint position, int pointSize, QWidget *parent)
{
    auto *label = new QLabel;
    label->setAttribute(Qt::WA_TranslucentBackground);
    label->setParent(parent);
    label->setText(text);
    // By design: the member is changed, from which the fonts of line edits and product buttons are copied later.
    dialogFont.setPointSize(pointSize);
    label->setFont(dialogFont);
    label->move(position);
    return label;
}

OrvikButton *RxMapWidgetDialog01::addCheckBox(int id, const QPoint &position, const char *name)
{
    const QStringList images{QStringLiteral("xBoxBg.png"), QStringLiteral("xBoxOn.png")};
    auto *box = new OrvikButton(id, imageDir, images, position, this, false);
    box->setDisableMode(true);
    box->setObjectName(QLatin1String(name));
    connect(box, SIGNAL(buttonReleased(int)), this, SLOT(onValueChanged(int)));
    return box;
}

OrvikLineEdit *RxMapWidgetDialog01::addLineEdit(int id, const QPoint &position, const char *name)
{
    auto *edit = new OrvikLineEdit(id, imageDir, position, this);
    edit->setTextFont(dialogFont);
    edit->setObjectName(QLatin1String(name));
    connect(edit, SIGNAL(textChanged(int)), this, SLOT(onValueChanged(int)));
    return edit;
}

void RxMapWidgetDialog01::setRed(QLabel *label)
{
    QPalette palette = label->palette();
    palette.setBrush(QPalette::All, foregroundRole(), QBrush(Qt::red));
    label->setPalette(palette);
}

void RxMapWidgetDialog01::readGroups()
{
    const QStringList names = broker->findGroup(QStringLiteral("rxMap.*"), true, false);
    if (!names.isEmpty())
        settingsGroup = qobject_cast<DbGroupRxMap *>(broker->getGroup(names.constFirst(), false));
    if (settingsGroup != nullptr)
        settings = settingsGroup->getSettings();

    // Done between the two reads of the groups: the host sees the bins read after the settings and before the mappings.
    setupSidebar();

    for (const QString &name : names) {
        auto *group = qobject_cast<DbGroupRxMap *>(broker->getGroup(name, false));
        if (group == nullptr)
            continue;
        rxMapGroups.append(group);
        rateCalMappings.append(group->getRateCalMappings());
    }
}

void RxMapWidgetDialog01::setupSidebar()
{
    const QStringList binGroups = broker->findGroup(QStringLiteral("system.binGroup.*"), true, false);
    for (int i = 0; i < binGroups.size(); ++i)
        productButtons.append(addProductButton(i, binGroups.at(i)));
    spreadProductButtons();
    addProductsCaption();
}

OrvikButton *RxMapWidgetDialog01::addProductButton(int index, const QString &binGroup)
{
    QFont buttonFont = dialogFont;
    buttonFont.setPointSize(24);
    const QStringList images{QStringLiteral("productButtonOff.png"), QStringLiteral("productButtonOn.png")};
    auto *button = new OrvikButton(index, imageDir, images, QPoint(0, 0), this, false);
    button->setHighLight(false);
    button->setObjectName(QStringLiteral("productButton%1").arg(index));

    QString label = tr("P") + QStringLiteral("%1").arg(index + 1, 2, 10, QLatin1Char('0'));
    QVariant shortName;
    if (broker->getProperty(binGroup.toLatin1().constData(), "compositionShortName", shortName) == 0)
        label = shortName.toString();
    if (index == selectedProduct) {
        button->setCurrentImage(1);
        button->addText(0, label, Qt::white, buttonFont);
    } else {
        button->addText(0, label, QColor(129, 129, 129, 255), buttonFont);
    }
    connect(button, SIGNAL(buttonReleased(int)), this, SLOT(productSelectionChanged(int)));
    return button;
}

// By design: there is no scrolling; with more buttons than fit, the gap turns negative and they overlap.
void RxMapWidgetDialog01::spreadProductButtons()
{
    if (productButtons.isEmpty())
        return;
    const int buttonHeight = productButtons.constFirst()->height();
    const int count = productButtons.size();
    const int gap = (height() - buttonHeight * count) / (count + 1);
    for (int k = 0; k < count; ++k)
        productButtons.at(k)->move(23, gap + k * (buttonHeight + gap));
}

// By design: it is made last, so that it lies over the buttons' left 32 pixels.
void RxMapWidgetDialog01::addProductsCaption()
{
    auto *caption = new QLabel(tr("P\nR\nO\nD\nU\nC\nT\nS"), this);
    caption->setAttribute(Qt::WA_TranslucentBackground);
    QPalette palette;
    palette.setBrush(QPalette::All, caption->foregroundRole(), QBrush(QColor(142, 142, 142, 255)));
    caption->setPalette(palette);
    dialogFont.setPointSize(18);
    caption->setFont(dialogFont);
    caption->setGeometry(5, 0, 50, height());
}

void RxMapWidgetDialog01::selectInitialProduct()
{
    for (int i = 0; i < settings.size(); ++i) {
        if (settings.at(i).isMaster) {
            setMasterProduct(i);
            return;
        }
    }
    productSelectionChanged(0);
}

void RxMapWidgetDialog01::doneButtonReleased(int)
{
    // Another touch may arrive while the first one is being written, or be under way when the dialog closes and hides
    // the message.
    if (result() == QDialog::Accepted)
        return;
    const QPointer<RxMapWidgetDialog01> self(this);
    // By design: the message decides, whatever the button shows: they differ before the first evaluation of a product
    // under control.
    if (!vehicleMovingLabel->isVisible()) {
        setResult(QDialog::Accepted);
        writeBack(broker, rxMapGroups, rateCalMappings, settingsGroup, settings);
    }
    if (self)
        accept();
}
