#include "frame/FileFilter.h"

#include <QStringList>

namespace tallimark {

QString qtFileFilter(const std::string& filter) {
    const QStringList parts = QString::fromStdString(filter).split(QLatin1Char('|'));
    QStringList entries;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString description = parts[i].trimmed();
        const QString patterns =
            QLatin1Char('(') + parts[i + 1].split(QLatin1Char(';')).join(QLatin1Char(' ')) + QLatin1Char(')');
        // Qt reads the patterns from the description's parentheses: name them there once.
        entries << (description.endsWith(patterns) ? description : description + QLatin1Char(' ') + patterns);
    }
    return entries.join(QStringLiteral(";;"));
}

} // namespace tallimark
