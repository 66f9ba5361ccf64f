#pragma once

#include "ui/list_view.h"
#include "ui/qt/binding.h"

#include <QTreeView>

namespace tarnwell::view {

/// The widths of a list's columns. Every column has its declared width, but never cuts its heading; the
/// widest takes what the list has to spare, and is the first to give. Once the user has dragged a column, all
/// stay as they are; what the list itself gains or loses from there on goes to the widest.
class ListColumns final : public QObject {
public:
    ListColumns(Binding& binding, ui::ListView& list, QTreeView& view);

    /// The texts of this column are the last to be cut: until the user has dragged it, it is as wide as the
    /// longest, and the other columns make room.
    void keepWhole(int column);
    /// Rows have come, gone or changed.
    void followRows();
    void fit();

private:
    void takeDragged(int column);
    void showScale();
    int longestText() const;
    int heading(int column) const;
    int spareColumn() const;
    std::vector<int> declaredWidths() const;
    std::vector<int> usersWidths() const;

    struct Users {
        std::vector<int> widths;
        int room; ///< the width of the list when they were dragged
        double pixelsPerTwip;
    };

    Binding& binding_;
    ui::ListView& list_;
    QTreeView& view_;
    int whole_ = -1, wholeWidth_ = 0;
    std::optional<Users> users_;
    bool wholeDragged_ = false;
    bool fitting_ = false;
};

} // namespace tarnwell::view
