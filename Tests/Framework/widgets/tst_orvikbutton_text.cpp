#include "buttontest.h"
#include "paintedtexts.h"
#include "paths.h"

#include <QImage>

/// What is written on a button.
class OrvikButtonTextTest : public ButtonTest {
    Q_OBJECT

private Q_SLOTS:
    void showsItsTextInItsColor();
    void replacesATextItem();
    void ignoresTheColorOfAnUnknownTextItem();
    void aTextThatIsALittleLongIsMadeSmallerAndStaysWhole();
    void aTextThatFitsStaysWhole_data();
    void aTextThatFitsStaysWhole();
    void aLongTextStaysOnTheButton();
    void theTextStandsOnWhatTheImageDraws();

private:
    /// Whether the button shows the filled square of a red text, all of it.
    bool showsRedSquare() const;
};

bool OrvikButtonTextTest::showsRedSquare() const
{
    const QImage image = button->grab().toImage();
    QImage square(7, 7, image.format());
    square.fill(Qt::red);
    for (int y = 0; y + square.height() <= image.height(); ++y) {
        for (int x = 0; x + square.width() <= image.width(); ++x) {
            if (image.copy(QRect(QPoint(x, y), square.size())) == square)
                return true;
        }
    }
    return false;
}

void OrvikButtonTextTest::showsItsTextInItsColor()
{
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(40);
    button->addText(0, QStringLiteral("\u25a0"), Qt::red, font); // a filled square, so that its middle has its colour
    QCOMPARE(button->text(0), QStringLiteral("\u25a0"));
    QCOMPARE(button->textColor(0), QColor(Qt::red));
    QCOMPARE(colorAt(inside), QColor(Qt::red));
    button->setTextColor(0, Qt::yellow);
    QCOMPARE(button->textColor(0), QColor(Qt::yellow));
    QCOMPARE(colorAt(inside), QColor(Qt::yellow));
}

void OrvikButtonTextTest::replacesATextItem()
{
    button->addText(0, QStringLiteral("P01"), Qt::red, QFont());
    button->addText(1, QStringLiteral("other"), Qt::black, QFont());
    button->addText(0, QStringLiteral("P02"), Qt::white, QFont());
    QCOMPARE(button->text(0), QStringLiteral("P02"));
    QCOMPARE(button->textColor(0), QColor(Qt::white));
    QCOMPARE(button->text(1), QStringLiteral("other"));
}

void OrvikButtonTextTest::ignoresTheColorOfAnUnknownTextItem()
{
    button->setTextColor(5, Qt::red);
    QCOMPARE(button->text(5), QString());
    QVERIFY(!button->textColor(5).isValid());
}

void OrvikButtonTextTest::aTextThatIsALittleLongIsMadeSmallerAndStaysWhole()
{
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(32);
    button->addText(0, QStringLiteral("UAN 2\u25a0"), Qt::red, font); // its last character is a filled square
    QVERIFY(showsRedSquare());
}

void OrvikButtonTextTest::aTextThatFitsStaysWhole_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"Milho", "Canola", "Water", "Inject", "Wheat", "UAN 28", "Bin16"})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void OrvikButtonTextTest::aTextThatFitsStaysWhole()
{
    QFETCH(QString, text);
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPointSize(24);
    button->addText(0, text, Qt::red, font);
    QCOMPARE(paintedTexts(*button), QStringList{text});
    // On the smaller plate of the terminal's product buttons, too.
    const QDir images(buildPath("Simulator/Resources/images"));
    OrvikButton product(1, images, {QStringLiteral("productButtonOff.png")}, QPoint(0, 0), window.data(), false);
    product.addText(0, text, Qt::red, font);
    QCOMPARE(paintedTexts(product), QStringList{text});
}

void OrvikButtonTextTest::aLongTextStaysOnTheButton()
{
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(32);
    button->addText(0, QStringLiteral("\u25a0 Ammonium nitrate, granular"), Qt::red, font);
    QVERIFY2(showsRedSquare(), "the text loses its beginning");
    const QImage image = button->grab().toImage();
    int redPixels = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == QColor(Qt::lightGray))
                continue;
            ++redPixels;
            QVERIFY2(x >= 4 && x < image.width() - 4, "the text touches the button's edge");
        }
    }
    QVERIFY(redPixels > 0);
}

void OrvikButtonTextTest::theTextStandsOnWhatTheImageDraws()
{
    const QRect plate(34, 0, 60, buttonSize.height());
    QImage image(buttonSize, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter(&image).fillRect(plate, Qt::lightGray);
    image.save(files->directory().filePath(QStringLiteral("plate.png")));
    OrvikButton plated(1, files->directory(), {QStringLiteral("plate.png")}, QPoint(0, 0), window.data(), false);
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(32);
    plated.addText(0, QStringLiteral("\u25a0 in \u25a0"), Qt::red, font);
    const QImage shown = plated.grab().toImage();
    int left = shown.width();
    int right = 0;
    for (int x = 0; x < shown.width(); ++x) {
        if (shown.pixelColor(x, buttonSize.height() / 2) == QColor(Qt::red)) {
            left = qMin(left, x);
            right = x;
        }
    }
    QVERIFY(left < right);
    QVERIFY(left > plate.left() && right < plate.right());
    QVERIFY2(qAbs(left - plate.left() - (plate.right() - right)) <= 2, "the text is not in the middle of the plate");
}

RXMAP_TEST(OrvikButtonTextTest, Widgets)
#include "tst_orvikbutton_text.moc"
