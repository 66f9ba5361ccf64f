#include "ui/qt/bind_controls.h"
#include "ui/qt/dropped_files.h"
#include "ui/qt/event_watcher.h"
#include "ui/user_actions.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTextCursor>

namespace tarnwell::view {

namespace {

bool isClick(QEvent& event) {
    return event.type() == QEvent::MouseButtonRelease &&
           static_cast<QMouseEvent&>(event).button() == Qt::LeftButton;
}

/// What a user does to a box beside changing its text. A read-only box shows no caret in Qt either, so hiding
/// the caret needs no work here.
void watchUser(Binding& binding, ui::TextBox& box, QWidget& widget) {
    new EventWatcher(widget, [&binding, &box](QEvent& event) {
        if (leavesFilesToWindow(event))
            return true;
        if (event.type() == QEvent::FocusIn && !binding.showing()) {
            ui::focus(box);
        } else if (isClick(event)) {
            ui::click(box);
        } else if (event.type() == QEvent::KeyPress) {
            const auto& key = static_cast<QKeyEvent&>(event);
            const bool movesFocus = key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab;
            if (!key.text().isEmpty() && !movesFocus)
                return !ui::pressKey(box, key.text().at(0).unicode());
        }
        return false;
    });
}

QWidget* bindOneLine(Binding& binding, ui::TextBox& box, QWidget* parent) {
    auto* edit = new QLineEdit(parent);
    edit->setReadOnly(box.readOnly);
    edit->setAlignment(box.centred ? Qt::AlignCenter : Qt::AlignLeading | Qt::AlignVCenter);
    const auto show = [&box, edit] {
        // Setting the text that the user has just typed would move the caret.
        if (edit->text() == box.text.get())
            return;
        edit->setText(box.text);
        edit->setCursorPosition(box.selectionStart);
    };
    const auto takeText = [&binding, &box, edit, show] {
        const QString written = edit->text();
        const auto behindCaret = written.size() - edit->cursorPosition();
        ui::type(box, written);
        if (edit->text() == written && box.text.get() == written)
            return;
        const Binding::Showing guard(binding);
        show();
        edit->setCursorPosition(static_cast<int>(edit->text().size() - behindCaret));
    };
    const auto showSelection = [&box, edit] { edit->setSelection(box.selectionStart, box.selectionLength); };
    binding.follow(box.text.changed, *edit, show);
    binding.listen(box.selectionStart.changed, *edit, showSelection);
    binding.listen(box.selectionLength.changed, *edit, showSelection);
    // What assistive technology writes counts as typed, too, and is no "edited" text to Qt.
    QObject::connect(edit, &QLineEdit::textChanged, edit, [&binding, takeText] {
        if (!binding.showing())
            takeText();
    });
    watchUser(binding, box, *edit);
    return edit;
}

QWidget* bindSeveralLines(Binding& binding, ui::TextBox& box, QWidget* parent) {
    auto* edit = new QPlainTextEdit(parent);
    edit->setReadOnly(box.readOnly);
    edit->setUndoRedoEnabled(!box.readOnly);
    edit->setTabChangesFocus(true);
    edit->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    const auto showSelection = [&box, edit] {
        // The document counts a line break as one character; a place behind its end is its end.
        const int end = edit->document()->characterCount() - 1;
        QTextCursor cursor = edit->textCursor();
        cursor.setPosition(std::min<int>(box.selectionStart, end));
        cursor.setPosition(std::min<int>(box.selectionStart + box.selectionLength, end),
                           QTextCursor::KeepAnchor);
        edit->setTextCursor(cursor);
        edit->ensureCursorVisible();
    };
    const auto show = [&box, edit, showSelection] {
        // Laying out a text takes long, and what the tool prints mostly comes while nobody looks.
        if (!edit->isVisible() || edit->toPlainText() == box.text.get())
            return;
        edit->setPlainText(box.text);
        showSelection();
    };
    binding.follow(box.text.changed, *edit, show);
    binding.listen(box.selectionStart.changed, *edit, showSelection);
    binding.listen(box.selectionLength.changed, *edit, showSelection);
    QObject::connect(edit, &QPlainTextEdit::textChanged, edit, [&binding, &box, edit, show] {
        if (binding.showing() || ui::type(box, edit->toPlainText()))
            return;
        const Binding::Showing guard(binding);
        show();
    });
    watchUser(binding, box, *edit);
    new EventWatcher(*edit, [&binding, show](QEvent& event) {
        if (event.type() == QEvent::Show) {
            const Binding::Showing guard(binding);
            show();
        }
        return false;
    });
    new EventWatcher(*edit->viewport(), [&box](QEvent& event) {
        if (isClick(event))
            ui::click(box);
        return leavesFilesToWindow(event);
    });
    return edit;
}

} // namespace

QWidget* bindTextBox(Binding& binding, ui::TextBox& box, QWidget* parent) {
    QWidget* edit =
        box.multiLine ? bindSeveralLines(binding, box, parent) : bindOneLine(binding, box, parent);
    binding.listen(box.focusWanted, *edit, [edit] { edit->setFocus(); });
    return edit;
}

} // namespace tarnwell::view
