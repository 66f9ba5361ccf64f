#pragma once

#include "platform/ports.h"

#include <QDialog>

class QLabel;
class QProgressBar;

namespace tarnwell {

/// The box that shows how far a thing has come. It is up from its first step; nothing but its end closes it.
class QtProgressBox : public ProgressBox, public QDialog {
public:
    QtProgressBox(QWidget* parent, const QString& title, std::function<void()> cancel);

    void show(const QString& text, int done, int steps) override;
    /// Asks for an early end, as the button does.
    void reject() override { cancel_(); }

private:
    std::function<void()> cancel_;
    QLabel* label_;
    QProgressBar* bar_;
};

} // namespace tarnwell
