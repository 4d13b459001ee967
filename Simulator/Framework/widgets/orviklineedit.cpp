#include "Framework/orviklineedit.h"

#include "numericentry.h"
#include "numerickey.h"
#include "numerickeypad.h"
#include "sharpimage.h"
#include "touchpress.h"

#include <QColor>
#include <QEvent>
#include <QFocusEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMargins>
#include <QMouseEvent>
#include <QPainter>
#include <QPen>
#include <QPointer>

namespace {

const QSize sizeWithoutImage(182, 56);
// Keeps the field's image apart from the caption that ends at its left edge.
const QMargins imageEdge(6, 0, 0, 0);
constexpr int textMargin = 12; // pixels on either side
constexpr int ringWidth = 4;
constexpr qreal ringRadius = 9.0;
constexpr qreal disabledOpacity = 0.45;

const QColor textColor(0, 0, 0);
const QColor selectionColor(11, 85, 144);
const QColor ringColor(22, 112, 184);
const QColor pressedRingColor(255, 176, 0);

} // namespace

class OrvikLineEditPrivate {
public:
    explicit OrvikLineEditPrivate(OrvikLineEdit *field)
        : q(field)
    {
    }

    void openKeypad();
    void beginEditing();
    void endEditing();
    void handle(const NumericKey &key);
    void showEntry();
    void paintText(QPainter &painter) const;

    OrvikLineEdit *q;
    int id = 0;
    QDir imageDir;
    SharpImage background;
    NumericEntry entry;
    TouchPress touch;
    QPointer<NumericKeypad> keypad;
    bool isEditing = false;
};

void OrvikLineEditPrivate::openKeypad()
{
    beginEditing();
    keypad = new NumericKeypad(imageDir, q);
    keypad->setLimits(entry.limitsText(), entry.takesPoint(), entry.takesMinus());
    QObject::connect(keypad.data(), &NumericKeypad::keyed, q, [this](const NumericKey &key) { handle(key); });
    QObject::connect(keypad.data(), &NumericKeypad::closed, q, [this] {
        keypad.clear();
        endEditing();
    });
    showEntry();
    keypad->open();
}

void OrvikLineEditPrivate::beginEditing()
{
    isEditing = true;
    entry.startOver();
    showEntry();
}

void OrvikLineEditPrivate::endEditing()
{
    isEditing = false;
    touch.cancel();
    if (keypad)
        keypad->close();
    q->update();
}

void OrvikLineEditPrivate::handle(const NumericKey &key)
{
    if (key.action == NumericKey::Action::Finish) {
        endEditing();
        return;
    }
    if (!isEditing)
        beginEditing();
    bool hasChanged = false;
    const bool isCharacter = key.action == NumericKey::Action::Character;
    if (keypad)
        keypad->showRefusal(isCharacter ? entry.refusalText(entry.refusalOf(key.character)) : QString());
    if (isCharacter)
        hasChanged = entry.type(key.character);
    else if (key.action == NumericKey::Action::EraseLast)
        hasChanged = entry.eraseLast();
    else if (key.action == NumericKey::Action::Clear)
        hasChanged = entry.clear();
    showEntry();
    if (hasChanged)
        Q_EMIT q->textChanged(id);
}

void OrvikLineEditPrivate::showEntry()
{
    if (keypad)
        keypad->showText(entry.text(), entry.startsOver());
    q->update();
}

void OrvikLineEditPrivate::paintText(QPainter &painter) const
{
    const QRect room = q->rect().marginsRemoved(imageEdge).adjusted(textMargin, 0, -textMargin, 0);
    const QString text = painter.fontMetrics().elidedText(entry.text(), Qt::ElideRight, room.width());
    const QRect place = painter.fontMetrics().boundingRect(room, Qt::AlignLeft | Qt::AlignVCenter, text);
    const bool isSelected = isEditing && entry.startsOver() && !text.isEmpty();
    if (isSelected)
        painter.fillRect(place.adjusted(-2, 0, 2, 0), selectionColor);
    painter.setPen(isSelected ? QColor(Qt::white) : textColor);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, text);
    if (isEditing && !isSelected) {
        const int caret = room.left() + painter.fontMetrics().horizontalAdvance(text) + 2;
        painter.fillRect(
            QRect(caret, room.center().y() - painter.fontMetrics().height() / 2, 2, painter.fontMetrics().height()),
            textColor);
    }
}

OrvikLineEdit::OrvikLineEdit(int id, QDir imageDir, QPoint position, QWidget *parent)
    : QWidget(parent)
    , d(new OrvikLineEditPrivate(this))
{
    d->id = id;
    d->imageDir = imageDir;
    d->background = SharpImage(imageDir.filePath(QStringLiteral("lineEditBg.png")));
    setGeometry(QRect(position, d->background.isNull() ? sizeWithoutImage : d->background.size()));
    // Not by the Tab key: a dialog would otherwise give the keyboard to its first field when it opens.
    setFocusPolicy(Qt::ClickFocus);
    connect(&d->touch, &TouchPress::lookChanged, this, [this] { update(); });
    connect(&d->touch, &TouchPress::released, this, [this] { d->openKeypad(); });
}

OrvikLineEdit::~OrvikLineEdit() = default;

int OrvikLineEdit::id() const
{
    return d->id;
}

void OrvikLineEdit::setNumericSizeLimits(unsigned int integerDigits, unsigned int decimals)
{
    d->entry.setSizeLimits(integerDigits, decimals);
}

void OrvikLineEdit::setNumericRange(double minimum, double maximum, unsigned int decimals)
{
    d->entry.setRange(minimum, maximum, decimals);
}

void OrvikLineEdit::setTextFont(QFont font)
{
    setFont(font);
}

void OrvikLineEdit::setText(QString text)
{
    d->entry.setText(text);
    d->showEntry();
}

QString OrvikLineEdit::getText() const
{
    return d->entry.text();
}

void OrvikLineEdit::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(disabledOpacity);
    painter.drawPixmap(0, 0, d->background.forPainter(painter));
    d->paintText(painter);
    if (!d->isEditing && !d->touch.looksPressed())
        return;
    painter.setPen(QPen(d->touch.looksPressed() ? pressedRingColor : ringColor, ringWidth));
    painter.setBrush(Qt::NoBrush);
    const qreal inset = ringWidth / 2.0 + 1.0;
    painter.drawRoundedRect(QRectF(rect().marginsRemoved(imageEdge)).adjusted(inset, inset, -inset, -inset), ringRadius,
                            ringRadius);
}

void OrvikLineEdit::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    if (event->button() == Qt::LeftButton)
        d->touch.press(TouchPress::Hold::Nothing);
}

void OrvikLineEdit::mouseMoveEvent(QMouseEvent *event)
{
    event->accept();
    d->touch.move(rect().contains(event->pos()));
}

void OrvikLineEdit::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
    if (event->button() == Qt::LeftButton)
        d->touch.release(rect().contains(event->pos()));
}

void OrvikLineEdit::keyPressEvent(QKeyEvent *event)
{
    const NumericKey key = NumericKey::of(*event);
    // Outside of an entry these keys are the dialog's.
    const bool isMine =
        key.action == NumericKey::Action::Finish ? d->isEditing : key.action != NumericKey::Action::None;
    event->setAccepted(isMine);
    if (isMine)
        d->handle(key);
}

void OrvikLineEdit::focusInEvent(QFocusEvent *)
{
    update();
}

void OrvikLineEdit::focusOutEvent(QFocusEvent *)
{
    // The keypad itself takes the keyboard when it opens.
    if (!d->keypad)
        d->endEditing();
}

void OrvikLineEdit::hideEvent(QHideEvent *event)
{
    d->endEditing();
    QWidget::hideEvent(event);
}

void OrvikLineEdit::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange) {
        if (!isEnabled())
            d->endEditing();
        update();
    }
    QWidget::changeEvent(event);
}
