#pragma once

#include <QString>
#include <QVector>

/// A vertex as OpenGL reads it: 16 bytes, tightly packed.
struct Vertex {
    float x; ///< View coordinates, metres: x east, y up, z south.
    float y;
    float z;
    quint32 color; ///< The bytes R, G, B, A from the lowest up.
};

Q_DECLARE_TYPEINFO(Vertex, Q_PRIMITIVE_TYPE);

static_assert(sizeof(Vertex) == 16, "OpenGL is given a stride of 16 bytes");

/// Number of triangle vertices for polygons with that many vertices, outer rings and holes in all: a polygon of n
/// vertices and h holes has at most n + 2h - 2 triangles where its rings do not cross. Never more than a list can hold
/// beside its header.
inline int triangleVertices(qint64 vertices, qint64 outers, qint64 holes)
{
    constexpr qint64 most = (0x7FFFFFFF - 256) / static_cast<qint64>(sizeof(Vertex));
    return static_cast<int>(qBound<qint64>(0, 3 * (vertices + 2 * holes - 2 * outers), most));
}

/// A named batch of triangles.
/// By design: `vertices` are drawn as triangles whatever the other fields say; nothing reads those.
struct VertexBank {
    QString name;
    bool enabled = false;
    float scale = 1.0F;
    qint32 primitive = 4;     ///< GL_TRIANGLES.
    QVector<Vertex> vertices; ///< Three in a row make a triangle.
    QVector<quint32> indices;
};
