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

/// A named batch of triangles. Only `vertices` is drawn, always as triangles; the other fields describe the batch.
struct VertexBank {
    QString name;
    bool enabled = false;
    float scale = 1.0F;
    qint32 primitive = 4;     ///< GL_TRIANGLES.
    QVector<Vertex> vertices; ///< Three in a row make a triangle.
    QVector<quint32> indices;
};
