#pragma once

#include "camera.h"
#include "repaintthrottle.h"

#include <QColor>
#include <QList>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QString>
#include <QWidget>

#include <optional>

class QPainter;

/// What lies over the map without being touched: the field's boundary, vehicle, look-ahead point, north arrow, scale
/// bar and the bubble at the touched point. Drawing it redraws the map below it, so changes of the vehicle and bubbles
/// that come faster than frames share one.
class MapOverlay : public QWidget {
    Q_OBJECT

public:
    explicit MapOverlay(QWidget *parent = nullptr);

    /// Draws at once, in step with the view whose camera this is.
    void setCamera(const Camera &camera);
    /// The part of the view between the panels, pixels.
    void setFreeArea(const QRectF &area);
    /// Metric scale bars count metres, others feet.
    void setMetric(bool metric);
    /// `place` in metres, `heading` in degrees clockwise from north.
    void setVehicle(const QPointF &place, double heading);
    /// The field's boundary, rings in metres; none where it is not known.
    void setBoundary(const QList<QPolygonF> &rings);
    /// Where the active product's rate is asked for (metres); nothing when it is not.
    void setLookAhead(const std::optional<QPointF> &field);
    /// Shows `text` at a field point with the colour of its class, as it looks on the ground; an empty text takes the
    /// bubble away.
    void showBubble(const QPointF &field, const QString &text, const QColor &color);

    /// Whether to mark the point that a key touches, the middle of the free area.
    void setAimed(bool isAimed);
    /// Outlines `extent` (metres, top = least y) and points at `place` in it; a null extent takes the mark away.
    void setMark(const QRectF &extent, const QPointF &place);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void drawBoundary(QPainter &painter) const;
    void drawLookAhead(QPainter &painter) const;
    void drawVehicle(QPainter &painter) const;
    void drawNorthArrow(QPainter &painter) const;
    void drawScaleBar(QPainter &painter) const;
    void drawMark(QPainter &painter) const;
    void drawAim(QPainter &painter) const;
    void drawBubble(QPainter &painter) const;

    Camera camera;
    QRectF freeArea;
    bool isMetric = true;
    QList<QPolygonF> boundary;
    QPointF vehicle;
    double vehicleHeading = 0.0;
    std::optional<QPointF> lookAhead;
    QPointF bubbleAt;
    QString text;
    QColor bubbleColor;
    bool isAimed = false;
    QRectF mark;
    QPointF markAt;
    RepaintThrottle pace;
};
