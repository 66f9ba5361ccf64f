#pragma once

#include "ui/qt/binding.h"

namespace tarnwell::view {

/// What the user had the focus on gets it back when it can be reached again. Work switches off what it was
/// started with, and Qt then gives the focus to whatever comes next.
class FocusKeeper final : public QObject {
public:
    /// Lives as long as the window, whose widgets are all there.
    FocusKeeper(const Binding& binding, QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void giveBack();

    const Binding& binding_;
    QWidget& window_;
    QPointer<QWidget> chosen_; ///< by the user, as far as the program's own moves of the focus go
};

} // namespace tarnwell::view
