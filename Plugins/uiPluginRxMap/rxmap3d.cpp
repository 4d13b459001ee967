#include "rxmap3d.h"

#include "groupvalue.h"
#include "placement/holeplacement.h"
#include "placement/ringlists.h"
#include "placement/ringtest.h"
#include "polygontessellation.h"
#include "ratemapping.h"

#include "Framework/databroker.h"
#include "Framework/dbgroupaam.h"
#include "Framework/orvikdebugclass.h"

#include <QOpenGLContext>
#include <QOpenGLShader>
#include <QOpenGLShaderProgram>
#include <QPointer>

#include <GL/glu.h>
#include <iostream>
#include <new>
#include <string>
#include <syslog.h>

using OrvikTypes::RX_POLYGON;
using OrvikTypes::RX_RATECOLOR;
using Mappings = QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>;
using Legends = QList<QList<RX_RATECOLOR>>;

namespace {

/// Without a limit, a hook that activates another product at every read would have the group chosen forever.
constexpr int mostRounds = 4;

/// The first prescription group, in the broker's order, that maps the product of `aam`; null when there is none.
DataBrokerGroup *findRxMapGroup(const DataBroker &broker, const DbGroupAAM &aam)
{
    const QStringList names = broker.findGroup(QStringLiteral("rxMap.*"), true, false);
    for (const QString &name : names) {
        DataBrokerGroup *group = broker.getGroup(name, false);
        // A hook may have taken the group out since the names were listed.
        if (group == nullptr)
            continue;
        const auto mappings = groupValue<Mappings>(*group, "rateCalMappings");
        if (findMapping(mappings, aam.productGroupName()) >= 0)
            return group;
    }
    return nullptr;
}

} // namespace

RxMap3D::RxMap3D(DataBroker *givenBroker, QObject *parent)
    : QObject(parent)
    , broker(givenBroker)
{
    updateRxMapGroup();
}

RxMap3D::~RxMap3D()
{
    // Qt calls slots that are member functions to the last, even when only the QObject part is left.
    QObject::disconnect(contextEnd);
}

float RxMap3D::drawingOrder() const
{
    return mapHeight;
}

void RxMap3D::setAamGroup(DbGroupAAM *group)
{
    aamGroup = group;
    if (isInitialized())
        updateRxMapGroup();
}

void RxMap3D::updateRxMapGroup()
{
    // Reading runs the host's hooks, which may delete this or activate another product. The group is then chosen again
    // for that product, often enough for any host that comes to rest.
    const QPointer<RxMap3D> self(this);
    for (int round = 0; round < mostRounds; ++round) {
        const DbGroupAAM *aam = aamGroup;
        DataBrokerGroup *group = aam == nullptr || broker == nullptr ? nullptr : findRxMapGroup(*broker, *aam);
        if (self != nullptr && (aamGroup == aam || round + 1 == mostRounds))
            setDbGroup(group);
        if (self == nullptr || aamGroup == aam)
            return;
    }
}

void RxMap3D::setDbGroup(DataBrokerGroup *group)
{
    if (rxMapGroup != nullptr)
        QObject::disconnect(rxMapGroup, nullptr, this, nullptr);
    rxMapGroup = group;
    if (rxMapGroup != nullptr)
        rxMapGroup->connectPropertySetSlot("polygonCount", this, SLOT(updatePolygons()), Qt::UniqueConnection, true);
    updatePolygons();
}

bool RxMap3D::isInsidePoly(OrvikTypes::RX_POLYGONVERTEX *vertices, int count, float x, float y)
{
    return vertices != nullptr && isInsideRing(vertices, count, static_cast<double>(x), static_cast<double>(y));
}

VertexBank *RxMap3D::addVertexBank(QString name)
{
    VertexBank bank;
    bank.name = name;
    vertexBanks.append(bank);
    return &vertexBanks.last();
}

void RxMap3D::updatePolygons()
{
    const unsigned int build = ++latestBuild;
    vertexBanks = QList<VertexBank>();
    GLUtesselator *tessellator = gluNewTess();
    if (tessellator == nullptr)
        return;
    // By design: without a group or a product the tessellator is left behind.
    if (rxMapGroup == nullptr || aamGroup == nullptr)
        return;
    // Reading runs the host's hooks, which may delete this, activate another product, or build or unbind the map
    // meanwhile: that build is the newer one, and the polygons read here may be gone since.
    const QPointer<RxMap3D> self(this);
    const DataBrokerGroup &group = *rxMapGroup;
    const DbGroupAAM &aam = *aamGroup;
    PolygonTessellation::registerCallbacks(tessellator);

    auto *chain = static_cast<RX_POLYGON *>(groupValue<void *>(group, "polygonBuffer"));
    const auto count = groupValue<unsigned int>(group, "polygonCount");
    const auto mappings = groupValue<Mappings>(group, "rateCalMappings");
    const int mappingIndex = findMapping(mappings, aam.productGroupName());
    const auto legends = groupValue<Legends>(group, "rateColors");
    const bool isLatest = self != nullptr && latestBuild == build && aamGroup == &aam;
    if (isLatest && mappingIndex >= 0 && mappingIndex < legends.size()) {
        VertexBank &bank = *addVertexBank(QStringLiteral("RxMap3D_Verts"));
        tessellateChain(bank, tessellator, RingLists(chain, count), legends.at(mappingIndex), mappingIndex);
    }
    gluDeleteTess(tessellator);
}

void RxMap3D::tessellateChain(VertexBank &bank, GLUtesselator *tessellator, const RingLists &rings,
                              const QList<RX_RATECOLOR> &legend, int mappingIndex)
{
    const HolePlacement placement(rings.outers, rings.holes);
    bank.vertices.reserve(triangleVertices(rings.vertices(), rings.outers.size(), rings.holes.size()));
    PolygonTessellation tessellation(tessellator, bank.vertices);
    for (int i = 0; i < rings.outers.size(); ++i) {
        RX_POLYGON &outer = *rings.outers.at(i);
        chooseColor(legend, outer, mappingIndex);
        tessellation.beginPolygon(currentColor);
        tessellation.addContour(outer);
        for (int hole = placement.firstHole(i); hole >= 0; hole = placement.nextHole(hole))
            tessellation.addContour(*rings.holes.at(hole));
        tessellation.endPolygon();
        outer.drawIndex = i + 1;
    }
    for (int hole = 0; hole < rings.holes.size(); ++hole) {
        if (!placement.isPlaced(hole))
            rings.holes.at(hole)->drawIndex = -1;
    }
}

void RxMap3D::chooseColor(const QList<RX_RATECOLOR> &legend, const RX_POLYGON &polygon, int mappingIndex)
{
    // By design: without a legend, or without rates, the colour of the polygon or of the build before carries over.
    if (legend.isEmpty() || polygon.rates == nullptr)
        return;
    const auto rate = static_cast<double>(polygon.rates[mappingIndex]);
    for (const RX_RATECOLOR &entry : legend) {
        if (entry.rate >= rate) {
            currentColor = entry.color;
            return;
        }
    }
    currentColor = legend.constLast().color;
}

// The drawable counts as initialised once its OpenGL functions are.
bool RxMap3D::isInitialized() const
{
    return QOpenGLFunctions::isInitialized(QOpenGLFunctions::d_ptr);
}

void RxMap3D::init()
{
    // Without a context there are no functions to find; a later call has another chance.
    const QOpenGLContext *context = QOpenGLContext::currentContext();
    if (isInitialized() || context == nullptr)
        return;
    initializeOpenGLFunctions();
    contextEnd = connect(context, &QOpenGLContext::aboutToBeDestroyed, this, &RxMap3D::forgetContext);
    auto *vertexShader = new QOpenGLShader(QOpenGLShader::Vertex, this);
    auto *fragmentShader = new QOpenGLShader(QOpenGLShader::Fragment, this);
    vertexShader->compileSourceFile(QStringLiteral(":/colorpoly_vert.glsl"));
    fragmentShader->compileSourceFile(QStringLiteral(":/colorpoly_frag.glsl"));
    shaderProgram().addShader(vertexShader);
    shaderProgram().addShader(fragmentShader);
    // By design: whether the shaders compiled and link is not checked; a program without them draws nothing.
    shaderProgram().link();
}

// Qt frees the functions with their context, and its programs are never created a second time: the one of Object3D is
// made again in its place.
void RxMap3D::forgetContext()
{
    QObject::disconnect(contextEnd);
    QOpenGLFunctions::d_ptr = nullptr;
    QOpenGLShaderProgram *program = &shaderProgram();
    program->~QOpenGLShaderProgram();
    new (program) QOpenGLShaderProgram;
    qDeleteAll(findChildren<QOpenGLShader *>());
}

void RxMap3D::draw(QMatrix4x4 mvp)
{
    // The functions would be called through a null context.
    if (!isInitialized() || QOpenGLContext::currentContext() == nullptr)
        return;
    QOpenGLShaderProgram &program = shaderProgram();
    program.bind();
    program.enableAttributeArray("a_position");
    program.enableAttributeArray("color");
    program.setUniformValueArray("u_mvp", &mvp, 1);
    // A copy of each bank, so that it stays whole whatever happens to the list while it is drawn.
    for (int i = 0; i < vertexBanks.size(); ++i) {
        const VertexBank bank = vertexBanks.at(i);
        drawBank(bank);
    }
    program.disableAttributeArray("a_position");
    program.disableAttributeArray("color");
}

void RxMap3D::drawBank(const VertexBank &bank)
{
    if (bank.vertices.isEmpty())
        return;
    const Vertex *first = bank.vertices.constData();
    shaderProgram().setAttributeArray("a_position", GL_FLOAT, &first->x, 3, sizeof(Vertex));
    shaderProgram().setAttributeArray("color", GL_UNSIGNED_BYTE, &first->color, 4, sizeof(Vertex));
    glDrawArrays(GL_TRIANGLES, 0, bank.vertices.size());
    reportErrors(__LINE__);
}

void RxMap3D::reportErrors(int line)
{
    while (glGetError() != GL_NO_ERROR) {
        ORVIK_DEBUG_CLASS::init()->lock();
        // By design: read a second time; the error that the loop saw is consumed, the next pending one is reported.
        const GLenum code = glGetError();
        const std::string text = "ERROR: An error occurred in: OpenGL: Plugins/uiPluginRxMap/rxmap3d("
            + std::to_string(line) + ") " + std::to_string(code) + "\n";
        syslog(LOG_ERR, "%s", text.c_str());
        std::cout << text << std::endl;
        ORVIK_DEBUG_CLASS::init()->unlock();
    }
}
