#pragma once

#include "dialogmodel.h"
#include "fieldview.h"
#include "handmadechain.h"
#include "listmodel.h"
#include "pluginlibrary.h"
#include "sequence.h"

#include "Framework/uigraphicslist.h"
#include "Framework/uigwidget.h"
#include "bePluginRxMap/rxmaploader.h"

#include <QDialog>
#include <QTranslator>

#include <deque>
#include <map>
#include <memory>
#include <vector>

class OrvikButtonQgw;

/// A host that does to the plug-in whatever a host may do, at any moment, and after each step compares what is seen of
/// it with what should be.
class HostileHost : public QObject {
    Q_OBJECT

public:
    HostileHost(PluginLibrary &library, FieldView &view);
    ~HostileHost() override;

    /// The first step that goes wrong, and what differs after it; empty when all is as it should be.
    QString run(const Sequence &sequence);
    /// How many lines were compared.
    int checks() const { return checkCount; }

    bool isQuiet() const { return quietness > 0; }

    // What the actions are made of.

    bool hasDialog() const { return !dialogs.empty() && dialogs.back().dialog != nullptr && dialogs.back().isOpen(); }
    QList<DataBrokerGroup *> maps() const;
    void publish(DataBrokerGroup *group);
    void remove(const QString &name);
    void publishMap(int kind, int seed);
    void setMappings(DataBrokerGroup &group, int seed);
    void setSettings(DataBrokerGroup &group, int seed);
    void setProtected(DataBrokerGroup &group, bool isProtected);
    void toggleValidity(DataBrokerGroup &group);
    /// Replaces the polygons and legends of a map: the count is 0 meanwhile.
    void fill(DataBrokerGroup &group, int seed);
    void removeMap(DataBrokerGroup &group, bool deletes);
    void activate(const QString &name);
    void makeList(const QString &name);
    void initList();
    void makeWidget(const QString &name);
    void deleteWidget(int number, bool byPlugin);
    void deleteEverything();
    void deletePlugin();
    void reloadLibrary();
    void loseContext();
    void setLanguage(int number);
    void setProducts(int count, int seed);
    void publishBin(int index, int seed);
    void touchMap(int seed);
    void setTrap(int seed, int action);
    void spring(int action);
    /// A long touch of a widget: the following steps are done inside the dialog, until it is left.
    void longTouch(int number);
    void touch(const char *control, int number);
    void type(const char *control, int seed);
    void press(int key);
    void poll();
    void deleteDialog();

    DataBroker broker;
    FieldView &view;
    QPointer<UiGraphicsList> list;

private:
    friend class Quiet;

    struct OpenDialog {
        bool isOpen() const { return dialog->isVisible(); }

        QPointer<QDialog> dialog;
        std::shared_ptr<DialogModel> model;
        bool isKnown;
    };
    struct Widget {
        QPointer<UiGWidget> widget;
        bool hadMap;
    };

    void runSteps();
    void doStep(const Step &step);
    /// After hooks acted: the host asks for its product once more, as it does after maps came or went.
    void settle();
    void check();
    void compare(const QStringList &seen, const QStringList &expected);
    void checkStored();
    void answer(const QPointer<DataBrokerGroup> &group);
    QList<float> ratesAt(const DataBrokerGroup *group, const QVector3D &point) const;
    void write(const QPointer<DataBrokerGroup> &group, const char *property, const QVariant &value);
    void setCount(const QPointer<DataBrokerGroup> &group, unsigned int count);
    void takeOver(QDialog *dialog, const std::shared_ptr<DialogModel> &model);
    void keep(DbGroupRxMap *group);
    QWidget *control(const char *name) const;
    bool eventFilter(QObject *watched, QEvent *event) override;

    PluginLibrary &library;
    ListModel listModel;
    bool isListCertain = true; ///< No hook acted while it was made.
    std::vector<Widget> widgets;
    std::vector<OpenDialog> dialogs;
    Stored stored;
    int reInitialisations = 0;
    int ratesTaken = 0;
    std::map<const DataBrokerGroup *, std::unique_ptr<HandMadeChain>> chains;
    std::vector<std::unique_ptr<HandMadeChain>> formerChains; ///< Something may still point to these.
    QList<const DataBrokerGroup *> invalidMaps;
    std::deque<RxMapLoader> loaders;
    QTranslator translator;
    Sequence steps;
    int next = 0;
    int springs = 0;   ///< Traps that sprang in this step.
    int quietness = 0; ///< Traps rest while it is not 0.
    int checkCount = 0;
    QString difference;
};

/// While it lives no trap springs.
class Quiet {
public:
    explicit Quiet(HostileHost &givenHost)
        : host(givenHost)
    {
        ++host.quietness;
    }
    ~Quiet() { --host.quietness; }
    Quiet(const Quiet &) = delete;
    Quiet &operator=(const Quiet &) = delete;

private:
    HostileHost &host;
};
