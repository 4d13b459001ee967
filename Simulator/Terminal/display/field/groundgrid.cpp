#include "groundgrid.h"

#include "camera.h"
#include "theme.h"

#include <QOpenGLShaderProgram>

#include <cmath>

namespace {

constexpr float belowMaps = -5.0F;
constexpr int linesPerMajor = 5;
constexpr quint8 MinorAlpha = 26;
constexpr quint8 MajorAlpha = 56;

} // namespace

void GroundGrid::setRegion(const QRectF &region, double spacing)
{
    vertices.clear();
    const qint64 west = qint64(std::floor(region.left() / spacing));
    const qint64 east = qint64(std::ceil(region.right() / spacing));
    const qint64 south = qint64(std::floor(region.top() / spacing));
    const qint64 north = qint64(std::ceil(region.bottom() / spacing));
    for (qint64 column = west; column <= east; ++column) {
        const double x = double(column) * spacing;
        addLine({x, double(south) * spacing}, {x, double(north) * spacing}, column % linesPerMajor == 0);
    }
    for (qint64 row = south; row <= north; ++row) {
        const double y = double(row) * spacing;
        addLine({double(west) * spacing, y}, {double(east) * spacing, y}, row % linesPerMajor == 0);
    }
}

void GroundGrid::addLine(const QPointF &from, const QPointF &to, bool isMajor)
{
    const QColor line = Theme::colors().groundLine;
    const quint8 alpha = isMajor ? MajorAlpha : MinorAlpha;
    for (const QPointF &end : {from, to})
        vertices.append({float(end.x()),
                         float(Camera::planeHeight),
                         float(-end.y()),
                         {quint8(line.red()), quint8(line.green()), quint8(line.blue()), alpha}});
}

void GroundGrid::init()
{
    if (isInitialised)
        return;
    initializeOpenGLFunctions();
    shaderProgram().addShaderFromSourceFile(QOpenGLShader::Vertex, QStringLiteral(":/colorpoly_vert.glsl"));
    shaderProgram().addShaderFromSourceFile(QOpenGLShader::Fragment, QStringLiteral(":/colorpoly_frag.glsl"));
    isInitialised = shaderProgram().link();
}

void GroundGrid::draw(QMatrix4x4 mvp)
{
    if (!isInitialised || vertices.isEmpty())
        return;
    QOpenGLShaderProgram &program = shaderProgram();
    program.bind();
    program.setUniformValue("u_mvp", mvp);
    program.enableAttributeArray("a_position");
    program.enableAttributeArray("color");
    program.setAttributeArray("a_position", GL_FLOAT, &vertices.constData()->x, 3, sizeof(Vertex));
    program.setAttributeArray("color", GL_UNSIGNED_BYTE, vertices.constData()->color, 4, sizeof(Vertex));
    glDrawArrays(GL_LINES, 0, vertices.size());
    program.disableAttributeArray("a_position");
    program.disableAttributeArray("color");
}

float GroundGrid::drawingOrder() const
{
    return belowMaps;
}
