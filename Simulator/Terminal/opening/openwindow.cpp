#include "openwindow.h"

#include "Backend/prescriptionbackend.h"
#include "choicepage.h"
#include "filepage.h"
#include "machine.h"
#include "messagepage.h"
#include "pager.h"
#include "previewpage.h"
#include "progresspage.h"
#include "theme.h"
#include "unitpage.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QPainter>
#include <QStackedLayout>

OpenWindow::OpenWindow(Machine *terminalMachine, QSettings &settings, QWidget *parent)
    : QWidget(parent)
    , machine(terminalMachine)
    , recent(settings)
    , memory(settings)
    , pages(new QStackedLayout(this))
    , files(new FilePage(this))
    , previews(new PreviewPage(terminalMachine, this))
    , progress(new ProgressPage(this))
    , message(new MessagePage(this))
    , choice(new ChoicePage(this))
    , unit(new UnitPage(this))
{
    setObjectName(QStringLiteral("openWindow"));
    for (QWidget *page : std::initializer_list<QWidget *>{files, previews, progress, message, choice, unit})
        pages->addWidget(page);
    connectPages();
    connectPreview();
    hide();
}

void OpenWindow::connectPages()
{
    PrescriptionBackend *backend = machine->backend();
    connect(backend, &PrescriptionBackend::surveyed, this, &OpenWindow::takeSurvey);
    connect(backend, &PrescriptionBackend::progress, this,
            [this](const QString &, double fraction) { progress->setFraction(fraction); });
    // What was offered are no products of the machine any more.
    connect(machine, &Machine::productsChanged, this, [this] {
        if (isVisible() && !isBusy() && last.isOk())
            survey(last.path, last.layer, last.task);
    });
    connect(files, &FilePage::recentWanted, this, [this] { files->showRecent(recent.paths()); });
    connect(files, &FilePage::fileChosen, this, [this](const QString &path) { preview({path}); });
    connect(files, &FilePage::left, this, &OpenWindow::leave);
    connect(progress, &ProgressPage::cancelled, this, &OpenWindow::giveUp);
    connect(message, &MessagePage::left, this, &OpenWindow::goBack);
    connect(message, &MessagePage::otherWanted, this, &OpenWindow::askOther);
    connect(choice, &ChoicePage::left, this, &OpenWindow::goBack);
    connect(choice, &ChoicePage::chosen, this, [this](int place) { whenChosen(place); });
    connect(unit, &UnitPage::left, this, &OpenWindow::goBack);
    connect(unit, &UnitPage::chosen, this, [this](const QString &text) {
        selection.setUnit(askedColumn, text);
        previews->refresh();
        showPage(previews);
    });
}

void OpenWindow::connectPreview()
{
    connect(previews, &PreviewPage::left, this, &OpenWindow::goBack);
    connect(previews, &PreviewPage::cancelled, this, &OpenWindow::leave);
    connect(previews, &PreviewPage::skipped, this, &OpenWindow::showNext);
    connect(previews, &PreviewPage::accepted, this, &OpenWindow::accept);
    connect(previews, &PreviewPage::layerTouched, this, &OpenWindow::askLayer);
    connect(previews, &PreviewPage::taskTouched, this, &OpenWindow::askTask);
    connect(previews, &PreviewPage::productTouched, this, &OpenWindow::askProduct);
    connect(previews, &PreviewPage::unitTouched, this, &OpenWindow::askUnit);
}

void OpenWindow::showPage(QWidget *page)
{
    pages->setCurrentWidget(page);
    show();
    raise();
    setFocus();
}

void OpenWindow::showProgress(const QString &text, Busy what)
{
    busy = what;
    isGivenUp = false;
    progress->begin(text);
    showPage(progress);
}

void OpenWindow::showFiles()
{
    const QStringList paths = recent.paths();
    if (paths.isEmpty())
        files->showFolder(QDir::homePath());
    else
        files->showRecent(paths);
    showPage(files);
}

void OpenWindow::returnToFiles()
{
    if (files->showsFolder())
        showPage(files);
    else
        showFiles();
}

void OpenWindow::preview(const QStringList &paths)
{
    waiting.append(paths);
    const bool isLookedAt = isVisible() && pages->currentWidget() != files;
    if (!isLookedAt)
        showNext();
    else if (pages->currentWidget() == previews)
        previews->show(selection, waiting.size());
}

void OpenWindow::showNext()
{
    if (waiting.isEmpty()) {
        leave();
        return;
    }
    const QString path = waiting.takeFirst();
    remembered = memory.of(path);
    survey(path, remembered ? remembered->layer : QString(), remembered ? remembered->task : QString());
}

void OpenWindow::survey(const QString &path, const QString &layer, const QString &task)
{
    ++surveys;
    showProgress(tr("Reading %1").arg(QFileInfo(path).fileName()), Busy::Surveying);
    LoadRequest request{path, {}, {}, {}, layer, task};
    machine->enterProducts(request);
    machine->backend()->survey(request);
}

void OpenWindow::takeSurvey(const SurveyReport &survey)
{
    if (busy != Busy::Surveying || --surveys > 0)
        return;
    busy = Busy::No;
    if (isGivenUp) {
        if (isVisible())
            returnToFiles();
        return;
    }
    const std::optional<FileChoices> before = remembered;
    remembered.reset();
    last = survey;
    if (!survey.isOk() && before && !(before->layer + before->task).isEmpty()) {
        // What was chosen then may be gone.
        this->survey(survey.path, {}, {});
        return;
    }
    if (!survey.isOk()) {
        tell(survey.error, files);
        return;
    }
    selection = OpenSelection(survey, machine->loadedProductsFor(survey.columnProducts));
    if (before && before->layer == survey.layer && before->task == survey.task)
        selection.apply(*before);
    previews->show(selection, waiting.size());
    showPage(previews);
}

void OpenWindow::refuse(const QString &reason)
{
    last = SurveyReport();
    tell(reason, files);
}

void OpenWindow::tell(const QString &reason, QWidget *behind)
{
    behindMessage = behind;
    message->tell(reason, last.layers.size() > 1 || last.tasks.size() > 1);
    showPage(message);
}

void OpenWindow::accept()
{
    if (!selection.feedsAny())
        return;
    showProgress(tr("Opening %1").arg(QFileInfo(selection.survey().path).fileName()), Busy::Loading);
    Q_EMIT wanted(selection.request());
}

void OpenWindow::finish(const LoadReport &report)
{
    busy = Busy::No;
    if (report.isOk()) {
        recent.add(selection.survey().path);
        memory.keep(selection.survey().path, selection.choices());
        showNext();
    } else if (isGivenUp) {
        if (isVisible())
            showPage(previews);
    } else {
        tell(report.error, previews);
    }
}

void OpenWindow::giveUp()
{
    isGivenUp = true;
    machine->backend()->cancel();
}

void OpenWindow::leave()
{
    waiting.clear();
    if (isBusy())
        giveUp();
    hide();
}

void OpenWindow::goBack()
{
    QWidget *page = pages->currentWidget();
    if (page == progress)
        giveUp();
    else if (page == files)
        leave();
    else if (page == message && behindMessage == files && !waiting.isEmpty())
        showNext();
    else if (page == message && behindMessage == previews)
        showPage(previews);
    else if (page == choice || page == unit)
        showPage(last.isOk() ? static_cast<QWidget *>(previews) : message);
    else {
        waiting.clear();
        returnToFiles();
    }
}

void OpenWindow::ask(const QString &question, const QStringList &options, int current, std::function<void(int)> answer)
{
    whenChosen = std::move(answer);
    choice->ask(question, options, current);
    showPage(choice);
}

void OpenWindow::askLayer()
{
    ask(tr("Which layer?"), last.layers, last.layers.indexOf(last.layer),
        [this](int place) { survey(last.path, last.layers.at(place), last.task); });
}

void OpenWindow::askTask()
{
    ask(tr("Which task?"), last.tasks, last.tasks.indexOf(last.task),
        [this](int place) { survey(last.path, last.layer, last.tasks.at(place)); });
}

void OpenWindow::askOther()
{
    if (last.layers.size() > 1)
        askLayer();
    else
        askTask();
}

void OpenWindow::askProduct(int index)
{
    QStringList options{tr("None")};
    QList<int> numbers{0};
    const QList<MachineProduct> products = selection.fedProducts();
    for (int number = 1; number <= products.size(); ++number) {
        if (!products.at(number - 1).isDriven)
            continue;
        options.append(QStringLiteral("%1. %2").arg(QString::number(number), products.at(number - 1).name));
        numbers.append(number);
    }
    ask(tr("Which product does %1 feed?").arg(selection.column(index).name), options,
        numbers.indexOf(selection.product(index)), [this, index, numbers](int place) {
            selection.setProduct(index, numbers.at(place));
            previews->refresh();
            showPage(previews);
        });
}

void OpenWindow::askUnit(int index)
{
    askedColumn = index;
    const MachineProduct product = selection.fedProducts().at(selection.product(index) - 1);
    unit->ask(tr("In which unit is %1?").arg(selection.column(index).name),
              PrescriptionBackend::rateUnits(product.kind), selection.unit(index), selection.column(index).unit);
    showPage(unit);
}

Pager *OpenWindow::currentPager() const
{
    QWidget *page = pages->currentWidget();
    if (page == files)
        return files->pager();
    if (page == previews)
        return previews->pager();
    return page == choice ? choice->pager() : nullptr;
}

bool OpenWindow::pressFocused()
{
    auto *button = qobject_cast<QAbstractButton *>(QApplication::focusWidget());
    if (button == nullptr || !isAncestorOf(button))
        return false;
    button->click();
    return true;
}

void OpenWindow::keyPressEvent(QKeyEvent *event)
{
    Pager *pager = currentPager();
    switch (event->key()) {
    case Qt::Key_Escape:
        goBack();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!pressFocused() && pages->currentWidget() == previews)
            accept();
        return;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        if (pager != nullptr)
            pager->turn(event->key() == Qt::Key_PageUp ? -1 : 1);
        return;
    case Qt::Key_Up:
    case Qt::Key_Left:
        Theme::showFocus(true);
        focusNextPrevChild(false);
        return;
    case Qt::Key_Down:
    case Qt::Key_Right:
        Theme::showFocus(true);
        focusNextPrevChild(true);
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

bool OpenWindow::focusNextPrevChild(bool next)
{
    QWidget *from = QApplication::focusWidget();
    if (from == nullptr || !isAncestorOf(from))
        from = this;
    const auto step = [next](QWidget *widget) {
        return next ? widget->nextInFocusChain() : widget->previousInFocusChain();
    };
    // What lies under the window is out of reach.
    for (QWidget *widget = step(from); widget != from; widget = step(widget)) {
        // Of the buttons of a group Qt lets the tabulator reach only the checked one.
        const bool takesKeys =
            (widget->focusPolicy() & Qt::TabFocus) != 0 || qobject_cast<QAbstractButton *>(widget) != nullptr;
        if (isAncestorOf(widget) && widget->isVisible() && widget->isEnabled() && takesKeys) {
            widget->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    }
    return false;
}

void OpenWindow::mousePressEvent(QMouseEvent *event)
{
    // Not for the map under the window.
    event->accept();
}

void OpenWindow::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), QColor(Theme::panel().rgb()));
}

void OpenWindow::showEvent(QShowEvent *)
{
    Q_EMIT shownChanged(true);
}

void OpenWindow::hideEvent(QHideEvent *)
{
    Q_EMIT shownChanged(false);
}
