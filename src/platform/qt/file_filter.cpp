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

QString inEitherCase(const QString& pattern) {
    QString result;
    for (const QChar letter : pattern) {
        if (letter.isLower() || letter.isUpper())
            result += u'[' + letter.toLower() + letter.toUpper() + u']';
        else
            result += letter;
    }
    return result;
}

} // namespace

QStringList toolkitFilters(const QString& filter, PatternsFit fit) {
    const QStringList parts = filter.split(u'|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns;
        for (const QString& pattern : parts[i + 1].split(u';', Qt::SkipEmptyParts)) {
            const QString shown = toolkitPattern(pattern);
            patterns += fit == PatternsFit::OwnCase ? inEitherCase(shown) : shown;
        }
        if (!patterns.isEmpty()) {
            filters += withoutParentheses(parts[i]) + QStringLiteral(" (") + patterns.join(u' ') + u')';
        }
    }
    return filters;
}

QString kindOfFile(const QString& filter) {
    return filter.section(u'|', 1, 1).section(u';', 0, 0).trimmed().toLower();
}

} // namespace tarnwell
