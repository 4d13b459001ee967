#include "numerickeypad.h"

#include "Framework/orvikbutton.h"

#include <QApplication>
#include <QColor>
#include <QFont>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QStringList>

namespace {

constexpr int keyWidth = 88;
constexpr int keyHeight = 72;
constexpr int keyGap = 8;
constexpr int margin = 14;
constexpr int displayHeight = 64;
constexpr int columns = 4;
constexpr int rows = 4;
constexpr int fieldGap = 8;
constexpr int remarkPixels = 17;
constexpr int maxRemarkWidth = 200;

const QColor panelColor(35, 44, 51);
const QColor panelEdgeColor(10, 15, 19);
const QColor inkColor(16, 24, 32);
const QColor limitsColor(84, 96, 105);
const QColor refusalColor(176, 0, 32);
const QColor selectionColor(11, 85, 144);

QFont sized(QFont font, int pixels)
{
    font.setPixelSize(pixels);
    return font;
}

QRect keyPlace(int column, int row, int rowCount = 1)
{
    return {margin + column * (keyWidth + keyGap), margin + displayHeight + keyGap + row * (keyHeight + keyGap),
            keyWidth, rowCount * keyHeight + (rowCount - 1) * keyGap};
}

NumericKey characterKey(char character)
{
    return {NumericKey::Action::Character, QLatin1Char(character)};
}

} // namespace

NumericKeypad::NumericKeypad(const QDir &imageDir, QWidget *field)
    : QWidget(field, Qt::Popup | Qt::FramelessWindowHint)
{
    setObjectName(QStringLiteral("numericKeypad"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_NoMouseReplay);
    setFont(field->font());
    const QRect lastKey = keyPlace(columns - 1, rows - 1);
    setFixedSize(lastKey.right() + 1 + margin, lastKey.bottom() + 1 + margin);

    const QString plate = QStringLiteral("keypadKey.png");
    const auto addCharacter = [&](char character, const QString &name, const QString &label, const QString &spoken,
                                  int column, int row) {
        OrvikButton *key = addKey(imageDir, plate, name, spoken, characterKey(character), keyPlace(column, row));
        key->addText(0, label, inkColor, sized(font(), 32));
        key->setDisableMode(true);
        return key;
    };
    for (int digit = 0; digit <= 9; ++digit) {
        const int column = digit == 0 ? 1 : (digit - 1) % 3;
        const int row = digit == 0 ? 3 : 2 - (digit - 1) / 3;
        const QString text = QString::number(digit);
        addCharacter(char('0' + digit), QStringLiteral("keypad") + text, text, text, column, row);
    }
    minusKey = addCharacter('-', QStringLiteral("keypadMinus"), QStringLiteral("\u2212"), tr("Minus"), 0, 3);
    pointKey = addCharacter('.', QStringLiteral("keypadPoint"), QStringLiteral("."), tr("Point"), 2, 3);
    addKey(imageDir, QStringLiteral("keypadBackspace.png"), QStringLiteral("keypadBackspace"),
           tr("Delete the last digit"), {NumericKey::Action::EraseLast, {}}, keyPlace(3, 0, 2));
    addKey(imageDir, QStringLiteral("keypadEnter.png"), QStringLiteral("keypadEnter"), tr("Done"),
           {NumericKey::Action::Finish, {}}, keyPlace(3, 2, 2));
}

OrvikButton *NumericKeypad::addKey(const QDir &imageDir, const QString &image, const QString &name,
                                   const QString &spoken, const NumericKey &key, const QRect &place)
{
    const bool repeats = key.action == NumericKey::Action::EraseLast;
    auto *button = new OrvikButton(0, imageDir, QStringList(image), place.topLeft(), this, repeats);
    button->resize(place.size());
    button->setObjectName(name);
    button->setAccessibleName(spoken);
    connect(button, &OrvikButton::buttonReleased, this, [this, key] { Q_EMIT keyed(key); });
    return button;
}

void NumericKeypad::setLimits(const QString &limits, bool takesPoint, bool takesMinus)
{
    limitsText = limits;
    pointKey->setEnabled(takesPoint);
    minusKey->setEnabled(takesMinus);
    update();
}

void NumericKeypad::showText(const QString &text, bool startsOver)
{
    shownText = text;
    textStartsOver = startsOver;
    update();
}

void NumericKeypad::showRefusal(const QString &reason)
{
    refusal = reason;
    setAccessibleDescription(reason);
    update();
}

void NumericKeypad::open()
{
    const QWidget *field = parentWidget();
    const QRect fieldPlace(field->mapToGlobal(QPoint(0, 0)), field->size());
    move(placeBeside(fieldPlace, size(), displayAround(fieldPlace.center())));
    show();
}

QRect NumericKeypad::displayAround(const QPoint &place) const
{
    // A host whose display is only part of the screen sets this property on each window.
    const QRect part = parentWidget()->window()->property("displayArea").toRect();
    if (!part.isEmpty())
        return part;
    const QScreen *screen = QGuiApplication::screenAt(place);
    return (screen != nullptr ? screen : QGuiApplication::primaryScreen())->availableGeometry();
}

QPoint NumericKeypad::placeBeside(const QRect &field, const QSize &keypad, const QRect &display)
{
    const int rightMost = display.right() + 1 - keypad.width();
    const int lowest = display.bottom() + 1 - keypad.height();
    const auto onDisplay = [&](int x, int y) {
        return QPoint(qMax(display.left(), qMin(x, rightMost)), qMax(display.top(), qMin(y, lowest)));
    };
    const int levelX = field.center().x() - keypad.width() / 2;
    const int levelY = field.center().y() - keypad.height() / 2;

    const int toTheRight = field.right() + 1 + fieldGap;
    if (toTheRight <= rightMost)
        return onDisplay(toTheRight, levelY);
    const int toTheLeft = field.left() - fieldGap - keypad.width();
    if (toTheLeft >= display.left())
        return onDisplay(toTheLeft, levelY);
    const int below = field.bottom() + 1 + fieldGap;
    if (below <= lowest)
        return onDisplay(levelX, below);
    return onDisplay(levelX, field.top() - fieldGap - keypad.height());
}

void NumericKeypad::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), panelColor);
    painter.setPen(QPen(panelEdgeColor, 3));
    painter.drawRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5));

    const QRect display(margin, margin, width() - 2 * margin, displayHeight);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(display).adjusted(1.5, 1.5, -1.5, -1.5), 9, 9);

    const QRect inner = display.adjusted(12, 4, -12, -4);
    const int remarkWidth = paintRemark(painter, inner);
    painter.setFont(sized(font(), 34));
    const QRect room = inner.adjusted(remarkWidth, 0, 0, 0);
    const QString text = painter.fontMetrics().elidedText(shownText, Qt::ElideLeft, room.width() - 8);
    const QRect place = painter.fontMetrics().boundingRect(room, Qt::AlignRight | Qt::AlignVCenter, text);
    if (textStartsOver && !text.isEmpty())
        painter.fillRect(place.adjusted(-4, 0, 4, 0), selectionColor);
    painter.setPen(textStartsOver ? QColor(Qt::white) : inkColor);
    painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, text);
}

/// Paints the limits, or why the last key was not taken, on two lines where one is too short. Returns the width used.
int NumericKeypad::paintRemark(QPainter &painter, const QRect &room) const
{
    const QString remark = refusal.isEmpty() ? limitsText : refusal;
    painter.setPen(refusal.isEmpty() ? limitsColor : refusalColor);
    painter.setFont(sized(font(), remarkPixels));
    const int width = painter.fontMetrics().horizontalAdvance(remark + QLatin1Char(' '));
    const QRect area(room.topLeft(), QSize(qMin(width, maxRemarkWidth), room.height()));
    painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap, remark);
    return area.width();
}

void NumericKeypad::keyPressEvent(QKeyEvent *event)
{
    const NumericKey key = NumericKey::of(*event);
    event->setAccepted(key.action != NumericKey::Action::None);
    if (event->isAccepted())
        Q_EMIT keyed(key);
}

void NumericKeypad::showEvent(QShowEvent *event)
{
    qApp->installEventFilter(this);
    QWidget::showEvent(event);
}

void NumericKeypad::hideEvent(QHideEvent *event)
{
    qApp->removeEventFilter(this);
    QWidget::hideEvent(event);
    Q_EMIT closed();
}

/// The window system takes a touch beside a popup and closes it. A touch that a tool hands to another widget directly
/// closes it too, but reaches that widget.
bool NumericKeypad::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress && watched->isWidgetType() && watched != this
        && !isAncestorOf(static_cast<QWidget *>(watched)))
        close();
    return QWidget::eventFilter(watched, event);
}
