#pragma once

#include "camera.h"
#include "fieldcanvas.h"
#include "fieldscene.h"
#include "restingmemory.h"

#include <QImage>
#include <QWidget>

class QTouchEvent;
class UiGraphicsList;

/// The 3D field view. One finger (or the mouse) touches or drags the ground, two fingers or the wheel zoom.
class FieldView : public QWidget {
    Q_OBJECT

public:
    /// The factor by which one step brings the camera nearer.
    static constexpr double zoomStep = 1.5;

    explicit FieldView(QWidget *parent = nullptr);
    ~FieldView() override;

    /// Whether the display has OpenGL; known once the view has been shown.
    bool isValid() const { return canvas.isValid(); }
    /// Makes the context that guests draw with current; not before the view has been shown.
    void makeCurrent() { canvas.makeCurrent(); }
    void doneCurrent() { canvas.doneCurrent(); }

    /// Shows the drawables of `list` (not owned; it must go while the context is current, see makeCurrent()).
    void addGraphicsList(UiGraphicsList *list);
    /// Shows a drawing aid of the host's own (not owned; to be removed before it goes).
    void addAid(Object3D *aid);
    void removeAid(Object3D *aid) { scene.removeAid(aid); }
    const Camera &camera() const { return eye; }
    /// The part of the view that no panel covers, pixels; what frame() fits a field into.
    void setFreeArea(const QRectF &area);
    /// Looks at `field` (metres) as a whole; it stays framed when the view's size changes, until it is moved by hand.
    void frame(const QRectF &field);
    /// Comes nearer by `factor` towards the middle of the free area.
    void zoom(double factor);
    /// Moves the map under the view, as a finger does that drags it by `pixels`.
    void pan(const QPointF &pixels);
    /// Touches the ground in the middle of the free area.
    void touchMiddle();
    /// Brings a field point into the middle of the free area, as near as before.
    void lookAt(const QPointF &field);
    /// What is drawn at a field point: ground and maps, without the host's drawing aids. Where the view shows the
    /// point, the pixel is the view's; for any other point a camera is moved there. Black without OpenGL.
    QColor colorAt(const QPointF &field);
    /// Something that is drawn has changed: the next colorAt() reads the colours again.
    void forgetColors();

Q_SIGNALS:
    /// The ground was touched at a field point, metres.
    void touched(const QPointF &field);
    void cameraChanged();
    /// The operator has dragged the view to another place.
    void movedByHand();
    /// Keys go to the view now, or no longer.
    void keyboardChanged(bool isHere);

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    QPointF middle() const;
    void moveCamera();
    void reframe();
    void press(const QPointF &screen);
    void drag(const QPointF &screen);
    void release(const QPointF &screen);
    bool followTouch(const QTouchEvent &event);
    QImage picture(const Camera &camera);

    Camera eye;
    FieldCanvas canvas;
    RestingMemory restingMemory{canvas};
    FieldScene scene;
    QRectF freeArea;
    QRectF framed;
    QPointF pressedAt;
    QPointF draggedTo;
    bool isPressed = false;
    bool isDragging = false;
    bool isPinching = false;
    QImage colors;
};
