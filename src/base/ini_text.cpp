#include "base/ini_text.h"

namespace tarnwell {

namespace {

bool isBlank(QChar c) {
    return c == u' ' || c == u'\t';
}

QString withoutBlanks(const QString& text) {
    qsizetype from = 0, to = text.size();
    while (from < to && isBlank(text[from]))
        ++from;
    while (to > from && isBlank(text[to - 1]))
        --to;
    return text.mid(from, to - from);
}

QString withoutQuotes(const QString& text) {
    if (text.size() < 2 || text.front() != text.back() || (text.front() != '"' && text.front() != '\''))
        return text;
    return text.mid(1, text.size() - 2);
}

bool sameName(const QString& a, const QString& b) {
    return withoutBlanks(a).compare(withoutBlanks(b), Qt::CaseInsensitive) == 0;
}

bool isSection(const QString& line) {
    return withoutBlanks(line).startsWith('[');
}

} // namespace

IniText::IniText(const QByteArray& bytes) : form_(bytes), rest_(form_.rest(bytes)) {
    const QString text = form_.units(bytes);
    qsizetype from = 0;
    while (from < text.size()) {
        qsizetype to = from;
        while (to < text.size() && text[to] != u'\r' && text[to] != u'\n')
            ++to;
        qsizetype next = to;
        if (next < text.size())
            next += text.mid(to, 2) == QLatin1String("\r\n") ? 2 : 1;
        lines_.append({text.mid(from, to - from), text.mid(to, next - to)});
        from = next;
    }
}

qsizetype IniText::sectionStart(const QString& section) const {
    for (qsizetype i = 0; i < lines_.size(); ++i) {
        if (!isSection(lines_[i].text))
            continue;
        const QString line = withoutBlanks(lines_[i].text);
        if (sameName(line.mid(1, line.indexOf(']') - 1), section))
            return i;
    }
    return -1;
}

qsizetype IniText::keyLine(qsizetype sectionStart, const QString& key) const {
    for (qsizetype i = sectionStart + 1; i < lines_.size() && !isSection(lines_[i].text); ++i) {
        const QString& line = lines_[i].text;
        const qsizetype equals = line.indexOf('=');
        if (equals >= 0 && !withoutBlanks(line).startsWith(';') && sameName(line.left(equals), key))
            return i;
    }
    return -1;
}

qsizetype IniText::lastLineOf(qsizetype sectionStart) const {
    qsizetype last = sectionStart;
    for (qsizetype i = sectionStart + 1; i < lines_.size() && !isSection(lines_[i].text); ++i) {
        if (!withoutBlanks(lines_[i].text).isEmpty())
            last = i;
    }
    return last;
}

std::optional<QString> IniText::value(const QString& section, const QString& key) const {
    const qsizetype start = sectionStart(section);
    const qsizetype at = start < 0 ? -1 : keyLine(start, key);
    if (at < 0)
        return std::nullopt;
    const QString& line = lines_[at].text;
    return form_.decoded(withoutQuotes(withoutBlanks(line.mid(line.indexOf('=') + 1))));
}

void IniText::setValue(const QString& section, const QString& key, const QString& value) {
    qsizetype start = sectionStart(section);
    if (start < 0) {
        insertLine(lines_.size(), form_.encoded('[' + section + ']'));
        start = lines_.size() - 1;
    }
    const qsizetype at = keyLine(start, key);
    if (at < 0) {
        insertLine(lastLineOf(start) + 1, form_.encoded(key + '=' + value));
        return;
    }
    QString& line = lines_[at].text;
    line = line.left(line.indexOf('=') + 1) + form_.encoded(value);
}

void IniText::insertLine(qsizetype at, const QString& text) {
    const QString end = lineEnd();
    if (at > 0 && lines_[at - 1].end.isEmpty())
        lines_[at - 1].end = end;
    lines_.insert(at, {text, end});
}

QString IniText::lineEnd() const {
    return lines_.isEmpty() || lines_.front().end.isEmpty() ? QString("\r\n") : lines_.front().end;
}

QByteArray IniText::bytes() const {
    QString all;
    for (const Line& line : lines_)
        all += line.text + line.end;
    return form_.bytes(all) + rest_;
}

} // namespace tarnwell
