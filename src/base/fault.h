#pragma once

#include <QString>

#include <stdexcept>

namespace tarnwell {

/// Something that a handler cannot go on from: a size that was never read, a line of the tool that makes no
/// sense. The dispatcher of events shows the text, which says in the user's words what was wrong and what to
/// do.
class Fault : public std::runtime_error {
public:
    explicit Fault(const QString& text) : std::runtime_error(text.toStdString()), text_(text) {}
    const QString& text() const { return text_; }

private:
    QString text_;
};

} // namespace tarnwell
