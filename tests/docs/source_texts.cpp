#include "docs/source_texts.h"

#include <QRegularExpression>

namespace tarnwell::test {

namespace {

bool isPartOfName(QChar character) {
    return character.isLetterOrNumber() || character == u'_';
}

/// Goes through the source once, from token to token.
class Reader {
public:
    explicit Reader(const QString& source) : source_(source) {}

    QList<SourceText> texts() {
        while (at_ < source_.size())
            readToken();
        return texts_;
    }

private:
    void readToken() {
        static const QRegularExpression nothing("//[^\n]*|/\\*[^*]*\\*/|#[^\n]*|\\s+");
        // A separator of thousands is part of its number.
        static const QRegularExpression nameOrValue("'(\\\\.|[^'\\\\])*'|\\d('?\\w)*|\\w+");
        if (skip(nothing))
            return;
        if (source_[at_] == u'"') {
            readLiteral();
            return;
        }
        if (!skip(nameOrValue))
            readPunctuation();
        joins_ = false;
    }

    void readPunctuation() {
        const QChar character = source_[at_++];
        if (character == u'(')
            calls_ += lastName_;
        else if (character == u')' && !calls_.isEmpty())
            calls_.removeLast();
        lastName_.clear();
    }

    void readLiteral() {
        QString text;
        for (++at_; at_ < source_.size() && source_[at_] != u'"'; ++at_)
            text += source_[at_] == u'\\' ? escaped(source_[++at_]) : source_[at_];
        ++at_;
        if (joins_)
            texts_.last().text += text;
        else
            texts_ += {text, calls_};
        joins_ = true;
    }

    static QChar escaped(QChar character) {
        switch (character.unicode()) {
        case u'r':
            return u'\r';
        case u'n':
            return u'\n';
        case u't':
            return u'\t';
        default:
            return character;
        }
    }

    bool skip(const QRegularExpression& token) {
        const auto match = token.match(source_, at_, QRegularExpression::NormalMatch,
                                       QRegularExpression::AnchorAtOffsetMatchOption |
                                           QRegularExpression::DontCheckSubjectStringMatchOption);
        if (!match.hasMatch())
            return false;
        if (isPartOfName(match.captured().front()))
            lastName_ = match.captured();
        at_ = match.capturedEnd();
        return true;
    }

    const QString& source_;
    qsizetype at_ = 0;
    QString lastName_;
    QStringList calls_;
    QList<SourceText> texts_;
    bool joins_ = false; ///< nothing but blanks stands between here and the last literal
};

} // namespace

QList<SourceText> textsIn(const QString& source) {
    return Reader(source).texts();
}

} // namespace tarnwell::test
