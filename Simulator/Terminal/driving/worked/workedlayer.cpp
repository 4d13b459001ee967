#include "workedlayer.h"

#include "camera.h"
#include "workedground.h"

#include <QColor>
#include <QOpenGLShaderProgram>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace {

constexpr float aboveMaps = -4.9F;
constexpr int verticesOfAStrip = 6;
constexpr int firstCapacity = 1024;

struct Vertex {
    float x;
    float y;
    float z;
    quint8 color[4];
};

constexpr int stripBytes = verticesOfAStrip * int(sizeof(Vertex));

void addStrip(std::vector<Vertex> &vertices, const WorkedGround::Strip &strip, const QColor &color)
{
    constexpr int triangles[verticesOfAStrip] = {0, 1, 2, 0, 2, 3};
    const auto channel = [](int value) { return quint8(value); };
    for (const int i : triangles) {
        const WorkedGround::Strip::Corner &corner = strip.corners[i];
        vertices.push_back({corner.x,
                            float(Camera::planeHeight),
                            -corner.y,
                            {channel(color.red()), channel(color.green()), channel(color.blue()),
                             channel(color.isValid() ? 255 : 0)}});
    }
}

} // namespace

WorkedLayer::WorkedLayer(WorkedGround *givenGround)
    : ground(givenGround)
{
}

void WorkedLayer::init()
{
    if (isInitialised)
        return;
    initializeOpenGLFunctions();
    shaderProgram().addShaderFromSourceFile(QOpenGLShader::Vertex, QStringLiteral(":/colorpoly_vert.glsl"));
    shaderProgram().addShaderFromSourceFile(QOpenGLShader::Fragment, QStringLiteral(":/colorpoly_frag.glsl"));
    isInitialised = shaderProgram().link() && buffer.create();
    buffer.setUsagePattern(QOpenGLBuffer::DynamicDraw);
}

float WorkedLayer::drawingOrder() const
{
    return aboveMaps;
}

void WorkedLayer::upload()
{
    qint64 first = ground->takeChanges();
    const int strips = int(ground->end() - ground->oldest());
    if (strips > capacity) {
        capacity = std::min(std::max({firstCapacity, strips, 2 * capacity}), WorkedGround::maxStrips);
        buffer.allocate(capacity * stripBytes);
        first = ground->oldest();
    }
    uploadFrom(first);
}

void WorkedLayer::uploadFrom(qint64 first)
{
    std::vector<Vertex> vertices;
    while (first < ground->end()) {
        // Only as far as the places follow each other.
        const int place = WorkedGround::slot(first);
        const qint64 last = std::min(ground->end(), first + WorkedGround::maxStrips - place);
        vertices.clear();
        for (qint64 number = first; number < last; ++number)
            addStrip(vertices, ground->strip(number), ground->color(number));
        buffer.write(place * stripBytes, vertices.data(), int(vertices.size() * sizeof(Vertex)));
        first = last;
    }
}

void WorkedLayer::draw(QMatrix4x4 mvp)
{
    if (!isInitialised || ground->end() == 0)
        return;
    buffer.bind();
    upload();
    QOpenGLShaderProgram &program = shaderProgram();
    program.bind();
    program.setUniformValue("u_mvp", mvp);
    program.enableAttributeArray("a_position");
    program.enableAttributeArray("color");
    program.setAttributeBuffer("a_position", GL_FLOAT, 0, 3, sizeof(Vertex));
    program.setAttributeBuffer("color", GL_UNSIGNED_BYTE, int(offsetof(Vertex, color)), 4, sizeof(Vertex));
    // The oldest first, so that ground worked twice shows the newer rate.
    const int oldest = WorkedGround::slot(ground->oldest());
    const int strips = int(ground->end() - ground->oldest());
    glDrawArrays(GL_TRIANGLES, oldest * verticesOfAStrip, (strips - oldest) * verticesOfAStrip);
    if (oldest > 0)
        glDrawArrays(GL_TRIANGLES, 0, oldest * verticesOfAStrip);
    program.disableAttributeArray("a_position");
    program.disableAttributeArray("color");
    buffer.release();
}
