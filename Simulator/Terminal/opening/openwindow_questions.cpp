// What the open window asks the operator about a file.
#include "Backend/prescriptionbackend.h"
#include "Backend/rateunits.h"
#include "choicepage.h"
#include "machine.h"
#include "openmap.h"
#include "openwindow.h"
#include "previewpage.h"
#include "showndistance.h"
#include "unitpage.h"

#include <QDir>

#include <algorithm>
#include <cmath>

void OpenWindow::ask(const QString &question, const QStringList &options, int current, std::function<void(int)> answer)
{
    whenChosen = std::move(answer);
    choice->ask(question, options, current);
    showPage(choice);
}

void OpenWindow::askArchived()
{
    QStringList names;
    for (const QString &path : qAsConst(last.archived))
        names.append(QDir(last.path).relativeFilePath(path));
    ask(tr("Which prescription of %1?").arg(PrescriptionBackend::nameOf(last.path)), names, -1, [this](int place) {
        waiting.prepend(last.archived.at(place));
        showNext();
    });
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
        const MachineProduct &product = products.at(number - 1);
        options.append(
            QStringLiteral("%1. %2 (%3)").arg(QString::number(number), product.name, RateUnits::base(product.kind)));
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
    unit->ask(tr("In which unit is %1?").arg(selection.column(index).name), selection.unitParts(index),
              selection.unit(index), selection.column(index).unit);
    showPage(unit);
}

void OpenWindow::askUnits(const QList<int> &columns)
{
    QStringList assumed;
    QStringList options;
    for (const int index : columns) {
        if (!assumed.contains(selection.assumedUnit(index)))
            assumed.append(selection.assumedUnit(index));
        options.append(tr("Choose the unit of %1").arg(selection.column(index).name));
    }
    options.prepend(tr("Open as %1").arg(assumed.join(QStringLiteral(", "))));
    ask(tr("The file does not tell in which unit it is"), options, -1, [this, columns](int place) {
        if (place > 0) {
            askUnit(columns.at(place - 1));
            return;
        }
        for (const int index : columns)
            selection.setUnit(index, selection.assumedUnit(index));
        previews->refresh();
        accept();
    });
}

void OpenWindow::askFarFields()
{
    QStringList fileNames;
    QStringList groups;
    double distance = HUGE_VAL;
    const QList<OpenMap> maps = OpenMap::beside(selection, *machine);
    for (const OpenMap &map : maps) {
        if (!map.staysFarAway())
            continue;
        fileNames.append(map.file);
        groups.append(map.group);
        distance = std::min(distance, map.distance);
    }
    if (groups.isEmpty()) {
        load({});
        return;
    }
    const QString names = fileNames.join(QStringLiteral(", "));
    ask(tr("%1 from %2, which stays open").arg(ShownDistance::text(distance, machine->unitSystem()), names),
        {tr("Close %1").arg(names), tr("Keep %1 open").arg(names)}, 0,
        [this, groups](int place) { load(place == 0 ? groups : QStringList()); });
}
