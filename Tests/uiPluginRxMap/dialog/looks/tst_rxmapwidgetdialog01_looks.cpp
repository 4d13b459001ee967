#include "files.h"
#include "openeddialog.h"
#include "testbase.h"

#include "Framework/orvikimage.h"

#include <QApplication>
#include <QPixmap>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTranslator>

/// The dialog's images, fonts, colours and texts.
class TestDialogLooks : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void controlsShowTheirImages();
    void lockedBoxesAreDimmed();
    void pressedProductButtonsAreNotHighlighted();
    void captionsHaveTheirSizes();
    void textsAreNotBoldInABoldApplication();
    void lineEditsKeepTheirFont();
    void productButtonsHaveLargeTexts();
    void theFontFamilyIsTheTerminals_data();
    void theFontFamilyIsTheTerminals();
    void addCaptionChangesTheDialogsFont();
    void messagesAreRed();
    void theVerticalCaptionLiesOverTheButtons();
    void textsAreTranslatedInTheirContexts();
    void constructionLogsNothing_data();
    void constructionLogsNothing();
};

namespace {

/// A folder with the dialog's images, each in one colour of its own.
class ColoredImages {
public:
    ColoredImages()
    {
        for (const char *button : {"doneButton", "Cancel", "xBoxBg", "xBoxOn"})
            add(button, QSize(60, 60));
        for (const char *button : {"productButtonOff", "productButtonOn"})
            add(button, QSize(200, 100));
        add("lineEditBg", QSize(182, 56));
        add("RxOptionsPopup", QSize(800, 800));
    }

    QDir dir() const { return QDir(folder.path()); }
    QColor color(const char *name) const { return colors.value(QString::fromLatin1(name)); }

private:
    void add(const char *name, const QSize &size)
    {
        const QColor color = QColor(QColor::fromHsv(40 * colors.size(), 255, 200).rgb());
        colors.insert(QString::fromLatin1(name), color);
        QPixmap image(size);
        image.fill(color);
        image.save(folder.filePath(QString::fromLatin1(name) + QStringLiteral(".png")));
    }

    QTemporaryDir folder;
    QMap<QString, QColor> colors;
};

/// The widget's colour beside its text.
QColor shownColor(QWidget *widget)
{
    return QColor(widget->grab().toImage().pixel(2, 2));
}

QImage looks(QWidget &widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QFont fontOf(const QString &family, int pointSize)
{
    QFont font(family);
    font.setWeight(50);
    font.setPointSize(pointSize);
    return font;
}

/// How a product button with that text and font looks.
QImage productButton(const QDir &images, const QString &text, const QFont &font, bool selected = false)
{
    const QStringList files{QStringLiteral("productButtonOff.png"), QStringLiteral("productButtonOn.png")};
    OrvikButton button(1, images, files, QPoint(0, 0), nullptr, false);
    button.setCurrentImage(selected ? 1 : 0);
    button.addText(0, text, selected ? QColor(Qt::white) : QColor(129, 129, 129, 255), font);
    return looks(button);
}

/// Translates every text into its context followed by the text.
class ContextTranslator : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return QString::fromLatin1(context) + QLatin1Char('|') + QString::fromLatin1(source);
    }
};

} // namespace

void TestDialogLooks::controlsShowTheirImages()
{
    const ColoredImages images;
    DialogHost host;
    host.images = images.dir();
    Opened opened(host);
    opened.dialog.show();
    const DialogProbe &probe = opened.probe;
    QCOMPARE(shownColor(opened.dialog.findChild<OrvikImage *>()), images.color("RxOptionsPopup"));
    QCOMPARE(shownColor(probe.lookAheadEdit()), images.color("lineEditBg"));
    QCOMPARE(shownColor(probe.defaultRateEdit()), images.color("lineEditBg"));
    QCOMPARE(shownColor(probe.productButton(0)), images.color("productButtonOn"));
    QCOMPARE(shownColor(probe.productButton(1)), images.color("productButtonOff"));
    for (OrvikButton *box : {probe.zeroRateShutoffBox(), probe.applyToAllBox()}) {
        QCOMPARE(shownColor(box), images.color("xBoxBg"));
        DialogProbe::release(box);
        QCOMPARE(shownColor(box), images.color("xBoxOn"));
    }
    QCOMPARE(shownColor(probe.doneButton()), images.color("doneButton"));
    opened.dialog.setControlsEnabledState(false);
    QCOMPARE(shownColor(probe.doneButton()), images.color("Cancel"));
}

void TestDialogLooks::lockedBoxesAreDimmed()
{
    const ColoredImages images;
    DialogHost host;
    host.images = images.dir();
    Opened opened(host);
    opened.dialog.show();
    for (OrvikButton *box : {opened.probe.zeroRateShutoffBox(), opened.probe.applyToAllBox()}) {
        opened.dialog.setControlsEnabledState(true);
        QCOMPARE(shownColor(box), images.color("xBoxBg"));
        opened.dialog.setControlsEnabledState(false);
        QVERIFY(shownColor(box) != images.color("xBoxBg"));
    }
}

void TestDialogLooks::pressedProductButtonsAreNotHighlighted()
{
    const ColoredImages images;
    DialogHost host;
    host.images = images.dir();
    Opened opened(host);
    opened.dialog.show();
    QTest::mousePress(opened.probe.doneButton(), Qt::LeftButton);
    QVERIFY(shownColor(opened.probe.doneButton()) != images.color("doneButton"));
    QTest::mousePress(opened.probe.productButton(1), Qt::LeftButton);
    QCOMPARE(shownColor(opened.probe.productButton(1)), images.color("productButtonOff"));
}

void TestDialogLooks::captionsHaveTheirSizes()
{
    DialogHost host;
    Opened opened(host);
    for (QLabel *label : opened.dialog.findChildren<QLabel *>()) {
        const int expected = label->text() == QLatin1String("Rx Map Settings") ? 26
            : label->text().startsWith(QLatin1String("P\n"))                   ? 18
                                                                               : 16;
        QCOMPARE(label->font().pointSize(), expected);
        QCOMPARE(label->font().weight(), 50);
    }
}

void TestDialogLooks::textsAreNotBoldInABoldApplication()
{
    const QFont before = QApplication::font();
    const auto restore = qScopeGuard([&before] { QApplication::setFont(before); });
    QFont bold = before;
    bold.setWeight(QFont::Bold);
    QApplication::setFont(bold);
    DialogHost host;
    Opened opened(host);
    QCOMPARE(opened.probe.dialogFont().weight(), 50);
    for (const QLabel *label : opened.dialog.findChildren<QLabel *>())
        QCOMPARE(label->font().weight(), 50);
}

void TestDialogLooks::lineEditsKeepTheirFont()
{
    DialogHost host;
    Opened opened(host);
    QCOMPARE(opened.probe.dialogFont().pointSize(), 18);
    for (OrvikLineEdit *edit : {opened.probe.lookAheadEdit(), opened.probe.defaultRateEdit()}) {
        QCOMPARE(edit->font().pointSize(), 16);
        QCOMPARE(edit->font().weight(), 50);
        QCOMPARE(edit->font().family(), QStringLiteral("Liberation Sans"));
    }
}

void TestDialogLooks::productButtonsHaveLargeTexts()
{
    const ColoredImages images;
    DialogHost host;
    host.images = images.dir();
    Opened opened(host);
    const QFont font = fontOf(QStringLiteral("Liberation Sans"), 24);
    QCOMPARE(looks(*opened.probe.productButton(0)), productButton(images.dir(), QStringLiteral("Bin1"), font, true));
    QCOMPARE(looks(*opened.probe.productButton(1)), productButton(images.dir(), QStringLiteral("Bin2"), font));
}

void TestDialogLooks::theFontFamilyIsTheTerminals_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QString>("family");
    QTest::newRow("not set") << QByteArray() << "Liberation Sans";
    QTest::newRow("set") << QByteArray("[main.general]\nfont=Liberation Mono\n") << "Liberation Mono";
}

void TestDialogLooks::theFontFamilyIsTheTerminals()
{
    QFETCH(QByteArray, settings);
    QFETCH(QString, family);
    const QTemporaryDir folder;
    const QString file = writeFile(folder.filePath(QStringLiteral("terminal.ini")), settings);
    const ColoredImages images;
    DialogHost host(3, file);
    host.images = images.dir();
    Opened opened(host);
    QCOMPARE(opened.probe.dialogFont().family(), family);
    QCOMPARE(opened.probe.largeFont().family(), family);
    for (const QLabel *label : opened.dialog.findChildren<QLabel *>())
        QCOMPARE(label->font().family(), family);
    for (const OrvikLineEdit *edit : {opened.probe.lookAheadEdit(), opened.probe.defaultRateEdit()})
        QCOMPARE(edit->font().family(), family);
    QCOMPARE(looks(*opened.probe.productButton(1)),
             productButton(images.dir(), QStringLiteral("Bin2"), fontOf(family, 24)));
}

void TestDialogLooks::addCaptionChangesTheDialogsFont()
{
    DialogHost host;
    Opened opened(host);
    const QLabel *label = opened.dialog.addCaption(QStringLiteral("text"), QPoint(3, 4), 31, &opened.dialog);
    QCOMPARE(opened.probe.dialogFont().pointSize(), 31);
    QCOMPARE(label->font().pointSize(), 31);
    QCOMPARE(label->pos(), QPoint(3, 4));
    QCOMPARE(label->parent(), &opened.dialog);
}

void TestDialogLooks::messagesAreRed()
{
    DialogHost host;
    Opened opened(host);
    for (QLabel *label : {opened.probe.vehicleMovingLabel(), opened.probe.notUnderVraLabel()}) {
        for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            QCOMPARE(label->palette().brush(group, opened.dialog.foregroundRole()), QBrush(Qt::red));
    }
    // Nothing else is red.
    const QWidget *others[] = {&opened.dialog, opened.probe.defaultRateLabel(), opened.probe.doneButton()};
    for (const QWidget *other : others)
        QVERIFY(other->palette().brush(opened.dialog.foregroundRole()) != QBrush(Qt::red));
}

void TestDialogLooks::theVerticalCaptionLiesOverTheButtons()
{
    DialogHost host;
    Opened opened(host);
    auto *caption = qobject_cast<QLabel *>(opened.dialog.children().constLast());
    QVERIFY(caption);
    QCOMPARE(caption->text(), QStringLiteral("P\nR\nO\nD\nU\nC\nT\nS"));
    QCOMPARE(caption->geometry(), QRect(5, 0, 50, opened.dialog.height()));
    QVERIFY(caption->testAttribute(Qt::WA_TranslucentBackground));
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        QCOMPARE(caption->palette().brush(group, caption->foregroundRole()), QBrush(QColor(142, 142, 142, 255)));
}

void TestDialogLooks::textsAreTranslatedInTheirContexts()
{
    DialogHost host(1);
    host.broker.publishGroup(new NamelessBinGroup(QStringLiteral("system.binGroup.2")));
    ContextTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    Opened opened(host);
    QCoreApplication::removeTranslator(&translator);
    QStringList shown;
    for (const QLabel *label : opened.dialog.findChildren<QLabel *>())
        shown.append(label->text());
    QStringList expected;
    for (const char *text :
         {"Rx Map Settings", "Enable Zero Rate Shutoff", "Apply to all products", "On look-ahead (seconds)",
          "Default Rate (DbGroupQmlUnitsConverter|kg/ha)", "This product node is not under VRA control.",
          "Changes not permitted while vehicle is moving.", "P\nR\nO\nD\nU\nC\nT\nS"})
        expected.append(QStringLiteral("RxMapWidgetDialog01|") + QString::fromLatin1(text));
    QCOMPARE(shown, expected);
    QCOMPARE(opened.probe.productButton(1)->text(0), QStringLiteral("RxMapWidgetDialog01|P02"));
}

void TestDialogLooks::constructionLogsNothing_data()
{
    QTest::addColumn<QString>("missing");
    for (const char *group : {"nothing", "QmlUnitsConverter", "mainGpsSolution", "quillSpan", "rxMap.field"})
        QTest::newRow(group) << QString::fromLatin1(group);
}

void TestDialogLooks::constructionLogsNothing()
{
    QFETCH(QString, missing);
    DialogHost host;
    host.broker.removeGroup(missing);
    messages().clear();
    Opened opened(host);
    QCOMPARE(messages().debugLines(), QStringList());
}

RXMAP_TEST(TestDialogLooks, Widgets)
#include "tst_rxmapwidgetdialog01_looks.moc"
