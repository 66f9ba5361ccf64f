#include "app/ini_text.h"

namespace tarnwell {

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

QByteArray withoutBlanks(const QByteArray& text) {
    qsizetype from = 0, to = text.size();
    while (from < to && isBlank(text[from]))
        ++from;
    while (to > from && isBlank(text[to - 1]))
        --to;
    return text.mid(from, to - from);
}

QByteArray withoutQuotes(const QByteArray& text) {
    if (text.size() < 2 || text.front() != text.back() || (text.front() != '"' && text.front() != '\''))
        return text;
    return text.mid(1, text.size() - 2);
}

bool sameName(const QByteArray& a, const QByteArray& b) {
    return withoutBlanks(a).compare(withoutBlanks(b), Qt::CaseInsensitive) == 0;
}

bool isSection(const QByteArray& line) {
    return withoutBlanks(line).startsWith('[');
}

} // namespace

IniText::IniText(const QByteArray& bytes) {
    qsizetype from = 0;
    while (from < bytes.size()) {
        qsizetype to = from;
        while (to < bytes.size() && bytes[to] != '\r' && bytes[to] != '\n')
            ++to;
        qsizetype next = to;
        if (next < bytes.size())
            next += bytes.mid(to, 2) == "\r\n" ? 2 : 1;
        lines_.append({bytes.mid(from, to - from), bytes.mid(to, next - to)});
        from = next;
    }
}

qsizetype IniText::sectionStart(const QByteArray& section) const {
    for (qsizetype i = 0; i < lines_.size(); ++i) {
        if (!isSection(lines_[i].text))
            continue;
        const QByteArray line = withoutBlanks(lines_[i].text);
        if (sameName(line.mid(1, line.indexOf(']') - 1), section))
            return i;
    }
    return -1;
}

qsizetype IniText::keyLine(qsizetype sectionStart, const QByteArray& key) const {
    for (qsizetype i = sectionStart + 1; i < lines_.size() && !isSection(lines_[i].text); ++i) {
        const QByteArray& line = lines_[i].text;
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

std::optional<QByteArray> IniText::value(const QByteArray& section, const QByteArray& key) const {
    const qsizetype start = sectionStart(section);
    const qsizetype at = start < 0 ? -1 : keyLine(start, key);
    if (at < 0)
        return std::nullopt;
    const QByteArray& line = lines_[at].text;
    return withoutQuotes(withoutBlanks(line.mid(line.indexOf('=') + 1)));
}

void IniText::setValue(const QByteArray& section, const QByteArray& key, const QByteArray& value) {
    qsizetype start = sectionStart(section);
    if (start < 0) {
        insertLine(lines_.size(), '[' + section + ']');
        start = lines_.size() - 1;
    }
    const qsizetype at = keyLine(start, key);
    if (at < 0) {
        insertLine(lastLineOf(start) + 1, key + '=' + value);
        return;
    }
    QByteArray& line = lines_[at].text;
    line = line.left(line.indexOf('=') + 1) + value;
}

void IniText::insertLine(qsizetype at, const QByteArray& text) {
    const QByteArray end = lineEnd();
    if (at > 0 && lines_[at - 1].end.isEmpty())
        lines_[at - 1].end = end;
    lines_.insert(at, {text, end});
}

QByteArray IniText::lineEnd() const {
    return lines_.isEmpty() || lines_.front().end.isEmpty() ? QByteArray("\r\n") : lines_.front().end;
}

QByteArray IniText::bytes() const {
    QByteArray all;
    for (const Line& line : lines_)
        all += line.text + line.end;
    return all;
}

} // namespace tarnwell
