#pragma once

#include "Backend/columnshares.h"
#include "Backend/loadreport.h"
#include "Backend/loadrequest.h"
#include "Backend/surveyreport.h"

#include "bePluginRxMap/bepluginrxmapglobal.h"

#include <QObject>
#include <QScopedPointer>

#include <cstddef>

class DataBroker;
class PrescriptionBackendPrivate;
class RxMapLoader;

/// Loads prescription files and keeps them published. Loading runs off the user-interface thread; everything is
/// published on it. A file that is loaded again replaces its own group's content; one that cannot be loaded changes
/// nothing. A product follows one map at a time: the map loaded last takes the product over, and when it is unloaded,
/// the map that had the product before gets it back. Whoever is told of this may unload maps, or delete the back-end.
class BEPLUGINRXMAP_EXPORT PrescriptionBackend : public QObject {
    Q_OBJECT

public:
    /// `broker` is not owned and outlives the back-end and every call of it.
    explicit PrescriptionBackend(DataBroker *broker, QObject *parent = nullptr);
    /// Cancels what is loading and unloads every map.
    ~PrescriptionBackend() override;

    /// Which of several files feeds which product, when the columns of `request` are named for all of them together.
    /// Its layer and task apply to every file; its path is ignored. Reads only the heads of the tables.
    static ColumnShares shareColumns(const QStringList &paths, const LoadRequest &request);

    /// Starts a load; requests are worked off one after the other, in order. finished() follows for each.
    void load(const LoadRequest &request);
    /// Loads and waits, with the event loop running. If something ends the wait, such as the end of the program, the
    /// load is given up and the report says so.
    LoadReport loadAndWait(const LoadRequest &request);
    /// Starts to look at a file without publishing anything; waits its turn as a load does, and surveyed() follows.
    /// Columns and units of the request are ignored.
    void survey(const LoadRequest &request);
    /// Whether a file of that name, or a folder with what it holds, may be a prescription.
    static bool mayBePrescription(const QString &path);
    /// What a prescription is called: the file's name, "fields.zip/north/rates.shp" for one within an archive.
    static QString nameOf(const QString &path);
    /// Whether the file, or the archive that it is in, is there.
    static bool isThere(const QString &path);

    /// Loads a file without publishing anything, and checks it for a machine of that width (metres). Blocks. The
    /// report's findings are those of the load and those of the check; where the check fails, those of the load and an
    /// error.
    static LoadReport checkFile(const LoadRequest &request, double machineWidth);
    /// Starts to check a published map in a thread of its own. checked() follows, unless the map is loaded again or
    /// unloaded before.
    void startCheck(const QString &group, double machineWidth);

    /// Cancels the load in progress and those waiting; each finishes with an error that says so.
    void cancel();
    bool isLoading() const;

    /// This many groups of unloaded maps stay callable for whoever may still hold them; earlier ones are deleted.
    static constexpr size_t retiredGroupsKept = 64;
    /// False when there is no such group.
    bool unload(const QString &group);
    /// Reports of the published maps, oldest first.
    QList<LoadReport> maps() const;
    /// The loader of a product (index from 0), made on first use; owned by the back-end.
    RxMapLoader *loader(int product);

Q_SIGNALS:
    /// A map is about to be published for products made from its columns; the machine is to take these products.
    void productsMade(const QList<ColumnProduct> &columns);
    /// `fraction` runs from 0 to 1 within one load.
    void progress(const QString &path, double fraction);
    void finished(const LoadReport &report);
    /// A survey has ended.
    void surveyed(const SurveyReport &survey);
    /// A check has ended: what the load and the check found in the map. `problem` says, in one line with the file's
    /// name, why the map could not be checked, and is empty when it was; what the load found is told all the same.
    void checked(const QString &group, const QList<MapFinding> &findings, const QString &problem);
    /// The set of published maps, or what feeds which product, changed.
    void mapsChanged();

private:
    QScopedPointer<PrescriptionBackendPrivate> d;
};
