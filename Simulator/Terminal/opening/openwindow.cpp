#include "openwindow.h"

#include "Backend/prescriptionbackend.h"
#include "choicepage.h"
#include "filepage.h"
#include "machine.h"
#include "messagepage.h"
#include "openmap.h"
#include "previewpage.h"
#include "productadoption.h"
#include "progresspage.h"
#include "removablevolumes.h"
#include "theme.h"
#include "trackcheck.h"
#include "unitpage.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStackedLayout>

OpenWindow::OpenWindow(Machine *terminalMachine, const ProductAdoption *productAdoption, QSettings &settings,
                       QWidget *parent)
    : QWidget(parent)
    , machine(terminalMachine)
    , adoption(productAdoption)
    , recent(settings)
    , memory(settings)
    , pages(new QStackedLayout(this))
    , files(new FilePage(terminalMachine, recent, this))
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
    // The products on offer are no longer the machine's.
    connect(machine, &Machine::productsChanged, this, [this] {
        if (isVisible() && !isBusy() && last.isOk())
            survey(last.path, last.layer, last.task);
    });
    connect(files, &FilePage::fileChosen, this, [this](const QString &path) { preview({path}); });
    connect(files, &FilePage::closeWanted, this, &OpenWindow::closeWanted);
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
        // If the unit was left to the file, the next "Open" asks for it again.
        const bool goesOn = isOpening && !text.isEmpty();
        isOpening = false;
        if (goesOn)
            accept();
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

void OpenWindow::offerSample(const QString &path)
{
    files->offerSample(path);
}

void OpenWindow::showFiles()
{
    files->offerVolumes(RemovableVolumes::mounted());
    files->showFirst();
    showPage(files);
    files->focusChosen();
}

void OpenWindow::showRecords(const QString &folder)
{
    showFiles();
    files->showRecords(folder);
}

void OpenWindow::returnToFiles()
{
    files->offerVolumes(RemovableVolumes::mounted());
    files->showAgain();
    showPage(files);
    files->focusChosen();
}

void OpenWindow::preview(const QStringList &paths)
{
    waiting.append(paths);
    const bool isLookedAt = isVisible() && pages->currentWidget() != files;
    if (!isLookedAt) {
        together.clear();
        showNext();
    } else if (pages->currentWidget() == previews) {
        previews->show(selection, waiting.size());
    }
}

void OpenWindow::showNext()
{
    if (waiting.isEmpty()) {
        leave();
        return;
    }
    const QString path = waiting.takeFirst();
    if (FolderListing::isTrack(path)) {
        Q_EMIT trackWanted(path);
        return;
    }
    remembered = memory.of(path);
    survey(path, remembered ? remembered->layer : QString(), remembered ? remembered->task : QString());
}

void OpenWindow::survey(const QString &path, const QString &layer, const QString &task)
{
    ++surveys;
    showProgress(tr("Reading %1").arg(PrescriptionBackend::nameOf(path)), Busy::Surveying);
    LoadRequest request{path, {}, {}, {}, layer, task};
    if (together.isEmpty())
        adoption->fillRequestForPreview(request);
    else
        adoption->fillRequest(request);
    for (const QString &group : qAsConst(together)) {
        const QList<int> fed = machine->columnsOf(group).keys();
        for (const int number : fed)
            request.products[number - 1].isFed = true;
    }
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
    if (!survey.archived.isEmpty()) {
        askArchived();
        return;
    }
    if (!survey.isOk()) {
        tell(survey.error, files);
        return;
    }
    selection = OpenSelection(survey, [this](const QList<ColumnProduct> &made) { return adoption->productsFor(made); });
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
    const QList<int> open = selection.withoutUnit();
    isOpening = !open.isEmpty();
    if (isOpening)
        askUnits(open);
    else
        askFarFields();
}

void OpenWindow::load(const QStringList &closes)
{
    showProgress(tr("Opening %1").arg(PrescriptionBackend::nameOf(selection.survey().path)), Busy::Loading);
    OpenRequest request = selection.request();
    request.closes = closes;
    const QList<OpenMap> maps = OpenMap::beside(selection, *machine);
    for (const OpenMap &map : maps) {
        if (map.isReplaced)
            request.replaces.append(map.group);
    }
    Q_EMIT wanted(request);
}

void OpenWindow::finish(const LoadReport &report)
{
    busy = Busy::No;
    if (report.isOk()) {
        recent.add(selection.survey().path);
        memory.keep(selection.survey().path, selection.choices());
        together.append(report.group);
        Q_EMIT opened(report);
        showNext();
    } else if (isGivenUp) {
        if (isVisible())
            showPage(previews);
    } else {
        tell(report.error, previews);
    }
}

void OpenWindow::finishTrack(const QString &path)
{
    recent.add(path);
    showNext();
}

void OpenWindow::giveUp()
{
    isGivenUp = true;
    machine->backend()->cancel();
    if (awaited != nullptr)
        awaited->giveUp();
}

void OpenWindow::leave()
{
    waiting.clear();
    isOpening = false;
    if (isBusy())
        giveUp();
    hide();
}

void OpenWindow::goBack()
{
    QWidget *page = pages->currentWidget();
    const bool isRefused = (page == message && behindMessage == files) || (page == choice && !last.archived.isEmpty());
    if (page == progress)
        giveUp();
    else if (page == files)
        leave();
    else if (isRefused && !waiting.isEmpty())
        showNext();
    else if (page == message && behindMessage == previews)
        showPage(previews);
    else if (!isRefused && (page == choice || page == unit)) {
        isOpening = false;
        showPage(last.isOk() ? static_cast<QWidget *>(previews) : message);
    } else {
        waiting.clear();
        returnToFiles();
    }
}

void OpenWindow::mousePressEvent(QMouseEvent *event)
{
    // Not for the map under the window.
    event->accept();
}

void OpenWindow::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), QColor(Theme::colors().panel.rgb()));
}

void OpenWindow::showEvent(QShowEvent *)
{
    Q_EMIT shownChanged(true);
}

void OpenWindow::hideEvent(QHideEvent *)
{
    Q_EMIT shownChanged(false);
}
