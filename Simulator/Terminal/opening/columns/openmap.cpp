#include "openmap.h"

#include "Backend/prescriptionbackend.h"
#include "machine.h"
#include "openselection.h"

#include <QFileInfo>

QList<OpenMap> OpenMap::beside(const OpenSelection &selection, const Machine &machine)
{
    const SurveyReport &survey = selection.survey();
    QList<int> fedAnew;
    for (int index = 0; index < selection.size(); ++index)
        fedAnew.append(selection.product(index));
    QList<OpenMap> maps;
    const QList<LoadReport> reports = machine.backend()->maps();
    for (const LoadReport &report : reports) {
        const QFileInfo file(report.path);
        if (file == QFileInfo(survey.path))
            continue;
        OpenMap map;
        map.group = report.group;
        map.file = PrescriptionBackend::nameOf(report.path);
        const QList<int> fed = machine.columnsOf(report.group).keys();
        for (const int number : fed) {
            if (fedAnew.contains(number))
                map.taken.append(machine.products().at(number - 1).name);
        }
        map.isReplaced = !survey.columnProducts.isEmpty() || map.taken.size() == fed.size();
        // Maps of one origin share a plane.
        if (report.origin != survey.origin)
            map.distance = report.distanceTo(survey.origin);
        maps.append(map);
    }
    return maps;
}
