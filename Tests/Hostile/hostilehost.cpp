#include "hostilehost.h"

#include "actions.h"
#include "dialoggroups.h"
#include "paths.h"
#include "trap.h"

#include "Framework/binmanager.h"
#include "Framework/dbgroupaam.h"
#include "Framework/dbgroupjob.h"
#include "Framework/dbgroupproductgroupinfo.h"
#include "Framework/dbgroupqmlunitsconverter.h"
#include "Framework/dbgroupsingleproductnode.h"
#include "Framework/orvikbutton.h"
#include "Framework/orvikbuttonqgw.h"
#include "Framework/orviklineedit.h"
#include "Framework/productlineitem.h"
#include "Framework/uigraphicslist.h"
#include "Framework/uigwidget.h"
#include "Framework/uiplugininterface.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMetaProperty>
#include <QMouseEvent>
#include <QTimer>

namespace {

constexpr std::size_t mostDialogs = 3;
constexpr int mostSprings = 8;

const OrvikButtonQgw *buttonOf(const UiGWidget &widget)
{
    for (QGraphicsItem *item : widget.childItems()) {
        if (auto *button = qobject_cast<OrvikButtonQgw *>(item->toGraphicsObject()))
            return button;
    }
    return nullptr;
}

void send(QWidget *widget, QEvent::Type type)
{
    const QPointF middle = QRectF(widget->rect()).center();
    QMouseEvent event(type, middle, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

QString asText(const FieldPicture &picture, int pixel)
{
    return QStringLiteral("pixel %1: %2").arg(pixel).arg(picture[static_cast<std::size_t>(pixel)], 8, 16, QChar('0'));
}

} // namespace

HostileHost::HostileHost(PluginLibrary &givenLibrary, FieldView &givenView)
    : view(givenView)
    , library(givenLibrary)
{
    view.makeContext();
    auto *units = new DbGroupQmlUnitsConverter(QStringLiteral("QmlUnitsConverter"));
    units->setAreaUnitSystem(1);
    publish(units);
    publish(new DbGroupJob(QStringLiteral("system.current.job")));
    for (int number = 1; number <= 3; ++number) {
        const QString product = QStringLiteral("system.productGroup.%1").arg(number);
        auto *aam = new DbGroupAAM(QStringLiteral("system.aam.%1").arg(number));
        aam->setProductGroupName(product);
        publish(aam);
        auto *info = new DbGroupProductGroupInfo(product);
        info->setRateKind(number);
        publish(info);
    }
    auto *quill = new QuillSpanGroup(QStringLiteral("quillSpan"));
    publish(quill);
    connect(quill, &QuillSpanGroup::reInitSet, this, [this](bool on) { reInitialisations += on ? 1 : 0; });
    auto *vehicle = new GpsGroup(QStringLiteral("mainGpsSolution"));
    vehicle->setVehicleIsStopped(true);
    publish(vehicle);
    for (int i = 0; i < 6; ++i) {
        loaders.emplace_back(20.5 * i);
        connect(&loaders.back(), &RxMapLoader::defaultRateTaken, this, [this] { ++ratesTaken; });
        stored.rates[&loaders.back()] = loaders.back().defaultRate;
    }
    setProducts(3, 0);
    qApp->installEventFilter(this);
}

HostileHost::~HostileHost()
{
    const Quiet quiet(*this);
    qApp->removeEventFilter(this);
    delete list;
    for (const Widget &entry : widgets)
        delete entry.widget;
    library.deletePlugin();
    qApp->removeTranslator(&translator);
    BinManager::instance(&broker)->setLoadedProducts({});
}

QString HostileHost::run(const Sequence &sequence)
{
    steps = sequence;
    next = 0;
    runSteps();
    return difference;
}

// When a dialog is being left, the remaining steps are done outside of it.
void HostileHost::runSteps()
{
    const std::size_t depth = dialogs.size();
    while (next < steps.size() && difference.isEmpty() && (depth == 0 || hasDialog()))
        doStep(steps.at(next++));
}

void HostileHost::doStep(const Step &step)
{
    const Action *action = findAction(step.action);
    if (action == nullptr || (action->inDialog && !hasDialog()))
        return;
    springs = 0;
    action->run(*this, step.a, step.b);
    if (springs > 0)
        settle();
    springs = 0;
    check();
    if (!difference.isEmpty() && !difference.contains(QLatin1String("after ")))
        difference += "\nafter " + toText({step});
}

void HostileHost::settle()
{
    const Quiet quiet(*this);
    for (OpenDialog &open : dialogs)
        open.isKnown = false;
    listModel.forget();
    DbGroupJob *job = listModel.followedJob();
    if (list != nullptr && job != nullptr && !job->isRemoved())
        activate(job->getActiveAAMGroupName());
    for (auto &entry : stored.groups) {
        if (entry.second.group)
            keep(entry.second.group);
    }
    for (const RxMapLoader &loader : loaders)
        stored.rates[&loader] = loader.defaultRate;
    stored.ratesTaken = ratesTaken;
    stored.reInitialisations = reInitialisations;
}

// Dialogs look at the vehicle every half second. Here time passes only when a step says so.
bool HostileHost::eventFilter(QObject *watched, QEvent *event)
{
    return event->type() == QEvent::Timer && !dialogs.empty() && watched->inherits("QSingleShotTimer");
}

void HostileHost::compare(const QStringList &seen, const QStringList &expected)
{
    checkCount += expected.size();
    for (int i = 0; i < qMax(seen.size(), expected.size()) && difference.isEmpty(); ++i) {
        if (seen.value(i) != expected.value(i) || i >= seen.size() || i >= expected.size())
            difference = QStringLiteral("seen:     %1\nexpected: %2").arg(seen.value(i), expected.value(i));
    }
}

void HostileHost::check()
{
    const Quiet quiet(*this);
    for (const Widget &entry : widgets) {
        if (entry.widget)
            compare({QStringLiteral("options button %1").arg(buttonOf(*entry.widget)->currentImage())},
                    {QStringLiteral("options button %1").arg(entry.hadMap ? 0 : 1)});
    }
    if (list != nullptr && isListCertain && listModel.isTextKnown()) {
        const QVector3D point(static_cast<float>(checkCount % 97), 2.5F, 0.0F);
        const auto rates = [this, point](const DataBrokerGroup *group) { return ratesAt(group, point); };
        compare({list->getPointDescription(point)}, {listModel.text(broker, rates)});
    }
    if (list != nullptr) {
        const FieldPicture seen = view.pictureOf(*list);
        const FieldPicture expected = listModel.picture();
        const bool isKnown = isListCertain && listModel.isPictureKnown() && view.isCurrent();
        checkCount += isKnown ? fieldSize * fieldSize : 0;
        for (int pixel = 0; isKnown && seen != expected && pixel < fieldSize * fieldSize; ++pixel)
            compare({asText(seen, pixel)}, {asText(expected, pixel)});
    }
    if (hasDialog() && dialogs.back().isKnown)
        compare(DialogModel::seenIn(*dialogs.back().dialog), dialogs.back().model->seen());
    checkStored();
}

void HostileHost::checkStored()
{
    for (const auto &entry : stored.groups) {
        const DbGroupRxMap *group = entry.second.group;
        if (group == nullptr)
            continue;
        const bool isKept =
            group->getSettings() == entry.second.settings && group->getRateCalMappings() == entry.second.mappings;
        compare({group->name() + (isKept ? " kept" : " changed")}, {group->name() + " kept"});
    }
    for (const RxMapLoader &loader : loaders)
        compare({QString::number(loader.defaultRate, 'g', 17)}, {QString::number(stored.rates[&loader], 'g', 17)});
    compare({QStringLiteral("%1 rates taken").arg(ratesTaken)},
            {QStringLiteral("%1 rates taken").arg(stored.ratesTaken)});
    compare({QStringLiteral("%1 re-initialisations").arg(reInitialisations)},
            {QStringLiteral("%1 re-initialisations").arg(stored.reInitialisations)});
}

void HostileHost::setTrap(int seed, int action)
{
    const QStringList names = broker.findGroup(QStringLiteral("*"), true, false);
    const QList<DataBrokerGroup *> prescriptions = maps();
    DataBrokerGroup *group = seed % 2 == 0 && !prescriptions.isEmpty()
        ? prescriptions.at(seed / 2 % prescriptions.size())
        : broker.getGroup(names.at(seed / 2 % names.size()), false);
    const QMetaObject *meta = group->metaObject();
    const int own = meta->propertyCount() - QObject::staticMetaObject.propertyCount();
    if (own == 0)
        return;
    const int property = QObject::staticMetaObject.propertyCount() + seed / 64 % own;
    (new Trap(*this, 1 + seed / 7 % 4, action))
        ->set(*group, meta->property(property).name(), static_cast<Trap::Kind>(seed / 3 % 4));
}

void HostileHost::spring(int action)
{
    if (++springs <= mostSprings)
        intruder(action % 97).run(*this, action / 97, action / 7);
}

void HostileHost::longTouch(int number)
{
    if (widgets.empty() || dialogs.size() >= mostDialogs)
        return;
    const Widget &touched = widgets.at(static_cast<std::size_t>(number) % widgets.size());
    if (touched.widget == nullptr)
        return;
    std::shared_ptr<DialogModel> model;
    {
        const Quiet quiet(*this);
        model = std::make_shared<DialogModel>(broker, stored);
    }
    // Deleted with this call when no dialog opens.
    QTimer opened;
    opened.setSingleShot(true);
    connect(&opened, &QTimer::timeout, this, [this, model] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (dialog == nullptr || (!dialogs.empty() && dialogs.back().dialog == dialog))
            return;
        takeOver(dialog, model);
        if (springs > 0)
            settle();
        check();
        runSteps();
        if (hasDialog())
            press(Qt::Key_Escape);
    });
    opened.start(0);
    const auto depth = dialogs.size();
    auto *button = const_cast<OrvikButtonQgw *>(buttonOf(*touched.widget));
    Q_EMIT button->longTouch(button->id());
    dialogs.erase(dialogs.begin() + static_cast<std::ptrdiff_t>(depth), dialogs.end());
    // The dialog below went on looking at the vehicle.
    poll();
}

void HostileHost::takeOver(QDialog *dialog, const std::shared_ptr<DialogModel> &model)
{
    dialogs.push_back({dialog, model, true});
    for (OrvikButton *button : dialog->findChildren<OrvikButton *>()) {
        const QString name = button->objectName();
        connect(button, &OrvikButton::buttonReleased, dialog, [this, name, model](int id) {
            const Quiet quiet(*this);
            if (name == QLatin1String("applyToAllBox"))
                model->applyToAllTouched();
            else if (name == QLatin1String("zeroRateShutoffBox"))
                model->shutoffTouched();
            else if (name == QLatin1String("doneButton"))
                model->doneTouched();
            else
                model->select(id);
        });
    }
    for (OrvikLineEdit *edit : dialog->findChildren<OrvikLineEdit *>()) {
        connect(edit, &OrvikLineEdit::textChanged, dialog, [this, edit, model] {
            const Quiet quiet(*this);
            if (edit->objectName() == QLatin1String("lookAheadEdit"))
                model->lookAheadTyped(edit->getText());
            else
                model->defaultRateTyped(edit->getText());
        });
    }
}

QWidget *HostileHost::control(const char *name) const
{
    return hasDialog() ? dialogs.back().dialog->findChild<QWidget *>(QString::fromLatin1(name)) : nullptr;
}

void HostileHost::touch(const char *name, int number)
{
    const QByteArray full = number < 0 ? QByteArray(name) : QByteArray(name) + QByteArray::number(number);
    const QPointer<QWidget> button = control(full.constData());
    if (button == nullptr || !button->isVisible())
        return;
    send(button, QEvent::MouseButtonPress);
    if (button)
        send(button, QEvent::MouseButtonRelease);
}

void HostileHost::type(const char *name, int seed)
{
    static const QStringList texts{"7",   "12.5", "0.0004", "2.57", "999.9", "5000",  "0",
                                   "-3e", ".5",   "33333",  "1.",   "0000",  "250.75"};
    const QPointer<QWidget> edit = control(name);
    if (edit == nullptr || !edit->isVisible())
        return;
    const QString text = texts.at(seed % texts.size()) + (seed % 3 == 0 ? "\b" : "") + (seed % 5 == 0 ? "\r" : "");
    for (const QChar &character : text) {
        const int key = character == '\b' ? Qt::Key_Backspace : character == '\r' ? Qt::Key_Return : 0;
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, key == 0 ? QString(character) : QString());
        if (edit)
            QApplication::sendEvent(edit, &event);
    }
}

void HostileHost::press(int key)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    if (hasDialog())
        QApplication::sendEvent(dialogs.back().dialog, &event);
}

void HostileHost::poll()
{
    if (!hasDialog())
        return;
    const auto model = dialogs.back().model;
    QMetaObject::invokeMethod(dialogs.back().dialog, "testForZeroSpeed");
    const Quiet quiet(*this);
    model->polled();
}

void HostileHost::deleteDialog()
{
    if (hasDialog())
        delete dialogs.back().dialog;
}
