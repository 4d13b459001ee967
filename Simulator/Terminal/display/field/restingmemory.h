#pragma once

#include <QObject>
#include <QTimer>

class FieldCanvas;

/// Gives back the memory that loading and drawing have left behind, once the field has not been drawn for a second.
class RestingMemory : public QObject {
    Q_OBJECT

public:
    /// `canvas` is not owned and outlives this object.
    explicit RestingMemory(FieldCanvas &canvas);

    /// The field has been drawn.
    void drawn() { rest.start(); }

private:
    void giveBack();

    FieldCanvas &canvas;
    QTimer rest;
};
