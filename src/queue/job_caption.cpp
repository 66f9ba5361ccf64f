#include "queue/job_caption.h"

#include <QDir>
#include <QStringList>

namespace tarnwell {

namespace {

/// The words of a command, always at least one. Blanks in front are skipped, two in the middle have an empty
/// word between them, and one at the very end belongs to the last word.
class Words {
public:
    explicit Words(const QString& command) {
        for (qsizetype i = 0; i < command.size(); ++i) {
            const QChar character = command[i];
            const bool last = i + 1 == command.size();
            if (character == u'"') {
                if (quoted_) {
                    store();
                    ++i; // the blank behind the closing quote
                } else {
                    word_.clear();
                }
                quoted_ = !quoted_;
            } else if (last || (character == u' ' && !quoted_)) {
                if (last)
                    word_ += character;
                store();
            } else {
                word_ += character;
            }
        }
    }

    const QStringList& all() const { return words_; }

private:
    void store() {
        if (words_.first().isEmpty())
            words_.first() = word_;
        else
            words_.append(word_);
        word_.clear();
    }

    QStringList words_{QString()};
    QString word_;
    bool quoted_ = false;
};

QString fileName(const QString& path) {
    const qsizetype separator = qMax(path.lastIndexOf(u'\\'), path.lastIndexOf(QDir::separator()));
    return path.mid(separator + 1);
}

} // namespace

QString JobCaption(const QString& command) {
    constexpr qsizetype kWordsOfACaption = 3;
    const QStringList words = Words(command).all();
    if (words.size() < kWordsOfACaption)
        return command;
    const QString& kind = words[0];
    if (kind == QLatin1String("inject_dvd") || kind == QLatin1String("inject_cd"))
        return "Installing [" + words[2] + "] onto Device [" + words[1] + ']';
    if (kind == QLatin1String("dump"))
        return "Creating ISO File [" + fileName(words[2]) + ']';
    if (kind == QLatin1String("extract"))
        return "Backing-up Game [" + words[2] + "] to PC";
    if (kind == QLatin1String("delete"))
        return "Deleting Game [" + words[2] + "] from Device [" + words[1] + ']';
    return command;
}

} // namespace tarnwell
