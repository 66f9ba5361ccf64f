#include "docs/markdown.h"

#include <QFile>
#include <QRegularExpression>

#include <stdexcept>

namespace tarnwell::test {

namespace {

QStringList captures(const QString& pattern, const QString& text) {
    const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
    QStringList found;
    for (auto matches = expression.globalMatch(text); matches.hasNext();)
        found += matches.next().captured(1);
    return found;
}

} // namespace

QString projectFile(const QString& path) {
    QFile file(QStringLiteral(TARNWELL_SOURCE "/") + path);
    if (!file.open(QFile::ReadOnly))
        throw std::runtime_error("Cannot read " + file.fileName().toStdString());
    return QString::fromUtf8(file.readAll());
}

QString plainWords(QString text) {
    static const QRegularExpression quoteSigns("^> ?", QRegularExpression::MultilineOption),
        signs("[*`\\\\]");
    return text.remove(quoteSigns).remove(signs).simplified();
}

QStringList quotes(const QString& page) {
    QString text = page;
    return captures("((?:^> ?\\S.*\n)+)", text.replace("\r\n", "\n"));
}

QStringList linkTargets(const QString& page) {
    return captures("\\]\\(([^)]*)\\)", page);
}

QStringList anchors(const QString& page) {
    static const QRegularExpression lostSigns("[^\\w -]");
    QStringList names = captures("^#+ (.*)$", page);
    for (QString& name : names)
        name = '#' + name.remove(lostSigns).toLower().replace(' ', '-');
    return names;
}

} // namespace tarnwell::test
