#include "platform/qt/file_filter.h"

namespace tarnwell {

namespace {

/// "All Files (*.*)" -> "All Files": the toolkit adds the patterns itself.
QString withoutParentheses(const QString& words) {
    const QString trimmed = words.trimmed();
    const qsizetype open = trimmed.lastIndexOf(u'(');
    return open > 0 && trimmed.endsWith(u')') ? trimmed.left(open).trimmed() : trimmed;
}

/// On most systems a file needs no dot in its name, and "*.*" means every file.
QString toolkitPattern(const QString& pattern) {
    const QString trimmed = pattern.trimmed();
    return trimmed == QStringLiteral("*.*") ? QStringLiteral("*") : trimmed;
}

} // namespace

QStringList toolkitFilters(const QString& filter) {
    const QStringList parts = filter.split(u'|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns;
        for (const QString& pattern : parts[i + 1].split(u';', Qt::SkipEmptyParts)) {
            patterns += toolkitPattern(pattern);
        }
        if (!patterns.isEmpty()) {
            filters += withoutParentheses(parts[i]) + QStringLiteral(" (") + patterns.join(u' ') + u')';
        }
    }
    return filters;
}

} // namespace tarnwell
