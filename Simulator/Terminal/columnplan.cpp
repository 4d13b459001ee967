#include "columnplan.h"

#include <algorithm>

Result<QList<QStringList>> ColumnPlan::distribute(const QList<File> &files, const QStringList &wanted)
{
    QList<QStringList> plan;
    for (int i = 0; i < files.size(); ++i)
        plan.append(QStringList());
    for (int product = 0; product < wanted.size(); ++product) {
        const QString &column = wanted.at(product);
        if (column.isEmpty())
            continue;
        const auto file = std::find_if(files.begin(), files.end(),
                                       [&column](const File &candidate) { return candidate.columns.contains(column); });
        if (file == files.end()) {
            QStringList paths;
            for (const File &candidate : files)
                paths.append(candidate.path);
            return Result<QList<QStringList>>::failure(
                QStringLiteral("--columns: no column \"%1\" in %2").arg(column, paths.join(QStringLiteral(", "))));
        }
        QStringList &columns = plan[int(file - files.begin())];
        while (columns.size() < product)
            columns.append(QString());
        columns.append(column);
    }
    return {plan, {}};
}
