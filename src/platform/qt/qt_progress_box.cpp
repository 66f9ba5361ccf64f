#include "platform/qt/qt_progress_box.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace tarnwell {

namespace {

constexpr int kCharacters = 60; ///< that are in sight of a text

} // namespace

QtProgressBox::QtProgressBox(QWidget* parent, const QString& title, std::function<void()> cancel)
    : QDialog(parent), cancel_(std::move(cancel)), label_(new QLabel), bar_(new QProgressBar) {
    setWindowTitle(title);
    setWindowModality(Qt::ApplicationModal);
    label_->setTextFormat(Qt::PlainText);
    label_->setFixedWidth(label_->fontMetrics().averageCharWidth() * kCharacters);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const column = new QVBoxLayout(this);
    column->addWidget(label_);
    column->addWidget(bar_);
    column->addWidget(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
}

void QtProgressBox::show(const QString& text, int done, int steps) {
    label_->setText(label_->fontMetrics().elidedText(text, Qt::ElideMiddle, label_->width()));
    bar_->setRange(0, steps);
    bar_->setValue(done);
    setVisible(true);
}

} // namespace tarnwell
