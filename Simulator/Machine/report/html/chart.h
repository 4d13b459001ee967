#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>

#include <vector>

class QXmlStreamWriter;

/// A plot as SVG inside a page: axes with numbers, and what is drawn between them.
class Chart {
public:
    /// `range` is what it shows: x from left to right, y from top() at the bottom up to bottom() at the top.
    Chart(QXmlStreamWriter *page, const QRectF &range);
    /// Closes the picture.
    ~Chart();

    void axes(const QString &xName, const QString &yName);
    /// From `from` to `to` along x, from zero up to `height`.
    void bar(double from, double to, double height);
    void line(const std::vector<QPointF> &points);
    /// A dot with a text above it.
    void mark(const QPointF &point, const QString &text);

private:
    Q_DISABLE_COPY(Chart)

    QPointF onPage(const QPointF &point) const;
    void stroke(const QPointF &from, const QPointF &to, const char *look);
    void text(const QPointF &place, const char *anchor, const QString &content);

    QXmlStreamWriter *page;
    QRectF range;
};
