#pragma once

#include "vertexbank.h"

#include "Framework/databrokergroup.h"
#include "Framework/object3d.h"
#include "Framework/rxpolygon.h"

#include <QColor>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

class DataBroker;
class DbGroupAAM;
class GLUtesselator;
struct RingLists;

/// The prescription map in the host's 3D field view: binds to the prescription group that maps the active product,
/// turns its polygons into one bank of coloured triangles and draws that.
///
/// Everything runs on the user-interface thread. Of OpenGL it expects blending as the host set it and a context that
/// is current in init() and draw(); it leaves its shader program bound and its two attribute arrays disabled, their
/// pointers stale, takes the pending OpenGL errors, and leaves all else as it found it. Vertices are handed over from
/// client memory: no buffer objects are made. A context that is destroyed takes along what init() made for it: until
/// the next init() nothing is drawn.
class RxMap3D : public QObject, public Object3D {
    Q_OBJECT

public:
    /// `broker` is not owned and outlives the drawable, as do the groups that it hands out: one that was taken out of
    /// the broker is safe to hold, one that was deleted behind its back is not.
    RxMap3D(DataBroker *broker, QObject *parent);
    ~RxMap3D() override;

    /// The application map whose product is shown; null shows nothing. Not owned. Takes effect at once when the
    /// drawable is initialised, else with the next updateRxMapGroup().
    void setAamGroup(DbGroupAAM *group);
    /// Binds the first prescription group, in the broker's order, that maps the active product.
    void updateRxMapGroup();
    /// Binds `group` (null: none) and builds the map again.
    void setDbGroup(DataBrokerGroup *group);
    /// Even-odd test of the point (x, y) against a ring of `count` vertices; half-open, so that a point on an edge
    /// shared by two rings is inside one of them. Offered to others; hole placement decides the same with a test of its
    /// own.
    bool isInsidePoly(OrvikTypes::RX_POLYGONVERTEX *vertices, int count, float x, float y);
    /// Appends an empty bank; valid until the list changes.
    VertexBank *addVertexBank(QString name);

    void init() override;
    void draw(QMatrix4x4 mvp) override;
    float drawingOrder() const override;

public Q_SLOTS:
    /// Builds the bank from what the bound group publishes, and writes each polygon's draw index back.
    void updatePolygons();

private:
    friend class RxMap3DProbe;

    /// Fills the bank and writes the draw indexes.
    void tessellateChain(VertexBank &bank, GLUtesselator *tessellator, const RingLists &rings,
                         const QList<OrvikTypes::RX_RATECOLOR> &legend, int mappingIndex);
    /// Sets currentColor to the first legend entry not below the polygon's rate, else to the last entry.
    void chooseColor(const QList<OrvikTypes::RX_RATECOLOR> &legend, const OrvikTypes::RX_POLYGON &polygon,
                     int mappingIndex);
    bool isInitialized() const;
    /// Frees what init() made for a context that ends; the next init() starts again.
    void forgetContext();
    void drawBank(const VertexBank &bank);
    /// Writes pending OpenGL errors, found at `line` of the source, to the system log and to standard output.
    void reportErrors(int line);

    QColor currentColor; ///< Colour of the polygon being tessellated; survives polygons and rebuilds.
    DataBroker *broker;
    QPointer<DataBrokerGroup> rxMapGroup; ///< A host may delete it some time after taking it out.
    DbGroupAAM *aamGroup = nullptr;
    QList<VertexBank> vertexBanks;
    QMetaObject::Connection contextEnd; ///< To the context that init() was called in.
    unsigned int latestBuild = 0;       ///< Number of the build that was started last, with or without a group.
};
