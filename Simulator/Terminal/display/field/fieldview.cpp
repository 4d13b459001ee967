#include "fieldview.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTouchEvent>
#include <QWheelEvent>
#include <QtMath>

#include <cmath>

namespace {

// A gloved finger rolls by this much without meaning to drag, pixels.
constexpr double touchSlack = 12.0;
constexpr double wheelNotch = 120.0;
constexpr double notchZoom = 1.2;
constexpr double frameMargin = 0.06;

bool liesIn(const QImage &image, const QPoint &pixel)
{
    return image.rect().contains(pixel);
}

QPoint pixelAt(const QPointF &screen)
{
    return QPoint(int(std::floor(screen.x())), int(std::floor(screen.y())));
}

} // namespace

FieldView::FieldView(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_AcceptTouchEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setObjectName(QStringLiteral("fieldView"));
    setAccessibleName(tr("Map"));
    setFocusPolicy(Qt::TabFocus);
}

FieldView::~FieldView()
{
    makeCurrent();
}

void FieldView::addGraphicsList(UiGraphicsList *list)
{
    if (isValid())
        makeCurrent();
    scene.addGraphicsList(list);
    if (isValid())
        doneCurrent();
    forgetColors();
    update();
}

void FieldView::addAid(Object3D *aid)
{
    if (isValid())
        makeCurrent();
    scene.addAid(aid);
    if (isValid())
        doneCurrent();
    update();
}

void FieldView::setFreeArea(const QRectF &area)
{
    freeArea = area;
    reframe();
}

void FieldView::frame(const QRectF &field)
{
    framed = field;
    reframe();
}

void FieldView::zoom(double factor)
{
    framed = QRectF();
    eye.zoom(factor, middle());
    moveCamera();
}

QPointF FieldView::middle() const
{
    return freeArea.isEmpty() ? QPointF(rect().center()) : freeArea.center();
}

void FieldView::pan(const QPointF &pixels)
{
    framed = QRectF();
    eye.pan(middle(), middle() + pixels);
    moveCamera();
    Q_EMIT movedByHand();
}

void FieldView::touchMiddle()
{
    const std::optional<QPointF> field = eye.fieldPoint(middle());
    if (field)
        Q_EMIT touched(*field);
}

void FieldView::lookAt(const QPointF &field)
{
    framed = QRectF();
    eye.setTarget(field);
    eye.pan(eye.project(field).value_or(QPointF()), middle());
    moveCamera();
}

void FieldView::reframe()
{
    if (framed.isEmpty() || width() < 1 || height() < 1)
        return;
    const QRectF area = freeArea.isEmpty() ? QRectF(rect()) : freeArea;
    const double margin = frameMargin * std::min(area.width(), area.height());
    eye.frame(framed, area.adjusted(margin, margin, -margin, -margin));
    moveCamera();
}

void FieldView::moveCamera()
{
    forgetColors();
    update();
    Q_EMIT cameraChanged();
}

void FieldView::forgetColors()
{
    colors = QImage();
}

QColor FieldView::colorAt(const QPointF &field)
{
    const std::optional<QPointF> screen = eye.project(field);
    if (screen && rect().contains(pixelAt(*screen))) {
        if (colors.isNull())
            colors = picture(eye);
        const QPoint pixel = pixelAt(*screen);
        return liesIn(colors, pixel) ? colors.pixelColor(pixel) : QColor(Qt::black);
    }
    Camera moved = eye;
    moved.setTarget(field);
    const QImage image = picture(moved);
    const QPoint pixel = pixelAt(moved.project(field).value_or(QPointF()));
    return liesIn(image, pixel) ? image.pixelColor(pixel) : QColor(Qt::black);
}

QImage FieldView::picture(const Camera &camera)
{
    return canvas.draw(scene, camera, FieldScene::Aids::Hidden, size(), FieldCanvas::Edges::Plain);
}

void FieldView::changeEvent(QEvent *event)
{
    // The ground has the theme's colour.
    if (event->type() == QEvent::PaletteChange)
        forgetColors();
    QWidget::changeEvent(event);
}

void FieldView::showEvent(QShowEvent *)
{
    if (canvas.isValid() || !canvas.create())
        return;
    scene.initialize();
    canvas.doneCurrent();
}

void FieldView::resizeEvent(QResizeEvent *)
{
    eye.setViewport(size());
    reframe();
    moveCamera();
}

void FieldView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    // In pixels of the screen, on which the display may be drawn larger or smaller.
    const QTransform toPixels = painter.deviceTransform();
    const QRect pixels = toPixels.mapRect(QRectF(rect())).toRect();
    const QImage frame = canvas.draw(scene, eye, FieldScene::Aids::Shown, pixels.size(), FieldCanvas::Edges::Smooth);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.drawImage(toPixels.inverted().mapRect(QRectF(pixels)), frame);
    restingMemory.drawn();
}

bool FieldView::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        if (followTouch(*static_cast<QTouchEvent *>(event))) {
            event->accept();
            return true;
        }
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

void FieldView::focusInEvent(QFocusEvent *)
{
    Q_EMIT keyboardChanged(true);
}

void FieldView::focusOutEvent(QFocusEvent *)
{
    Q_EMIT keyboardChanged(false);
}

bool FieldView::followTouch(const QTouchEvent &event)
{
    const QList<QTouchEvent::TouchPoint> &points = event.touchPoints();
    if (points.isEmpty() || event.type() == QEvent::TouchCancel) {
        isPressed = false;
        isPinching = false;
        return true;
    }
    const QPointF first = points.first().pos();
    if (points.size() > 1) {
        const QPointF second = points.at(1).pos();
        const QPointF formerFirst = points.first().lastPos();
        const QPointF formerSecond = points.at(1).lastPos();
        const double now = QLineF(first, second).length();
        const double before = QLineF(formerFirst, formerSecond).length();
        // The second finger ends the touch that the first one began.
        if (isPinching && now > 1.0 && before > 1.0) {
            framed = QRectF();
            eye.pan((formerFirst + formerSecond) / 2.0, (first + second) / 2.0);
            eye.zoom(now / before, (first + second) / 2.0);
            moveCamera();
            Q_EMIT movedByHand();
        }
        isPinching = event.type() != QEvent::TouchEnd;
        isPressed = false;
        return true;
    }
    isPinching = false;
    if (event.type() == QEvent::TouchBegin)
        press(first);
    else if (event.type() == QEvent::TouchUpdate)
        drag(first);
    else
        release(first);
    return true;
}

void FieldView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        press(event->localPos());
}

void FieldView::mouseMoveEvent(QMouseEvent *event)
{
    drag(event->localPos());
}

void FieldView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        release(event->localPos());
}

void FieldView::press(const QPointF &screen)
{
    isPressed = true;
    isDragging = false;
    pressedAt = screen;
    draggedTo = screen;
}

void FieldView::drag(const QPointF &screen)
{
    if (!isPressed)
        return;
    isDragging = isDragging || QLineF(pressedAt, screen).length() > touchSlack;
    if (!isDragging)
        return;
    framed = QRectF();
    eye.pan(draggedTo, screen);
    draggedTo = screen;
    moveCamera();
    Q_EMIT movedByHand();
}

void FieldView::release(const QPointF &screen)
{
    const bool wasTouch = isPressed && !isDragging;
    isPressed = false;
    if (!wasTouch)
        return;
    const std::optional<QPointF> field = eye.fieldPoint(screen);
    if (field)
        Q_EMIT touched(*field);
}

void FieldView::wheelEvent(QWheelEvent *event)
{
    framed = QRectF();
    eye.zoom(std::pow(notchZoom, event->angleDelta().y() / wheelNotch), event->position());
    moveCamera();
    event->accept();
}
