#include "workflows/export_game_list.h"

#include "base/replace_file.h"
#include "base/text_primitives.h"

#include <QFile>
#include <QFileInfo>

namespace tarnwell {

namespace {

const QString kTextFilter = QStringLiteral("Text Files (*.txt)|*.txt|All Files (*.*)|*.*|");
const QString kFormatPrompt =
    QStringLiteral("Select the format in which you would like to save your game list.\r\n\r\n"
                   "The below items are optional and will be added on after the game title.\r\n\r\n"
                   "%startup = Startup file\r\n"
                   "%size = Size of the game\r\n"
                   "%type = Type (CD\\DVD)\r\n"
                   "%flags = Compatibility flags for the game\r\n"
                   "%tab = Tab");

/// As many digits as the last row's number needs.
QString numberPattern(int rows) {
    return QString(QString::number(rows).size() - 1, '0') + '#';
}

/// The words count wherever they stand, also in the game's name.
QString withWordsReplaced(QString line, const QStringList& subItems) {
    constexpr const char* kWords[] = {"%startup", "%size", "%type", "%flags"};
    for (qsizetype i = 0; i < std::ssize(kWords); ++i)
        line.replace(QLatin1String(kWords[i]), subItems.value(i));
    return line.replace(QLatin1String("%tab"), QLatin1String("\t"));
}

/// An old file is out of the way at once, but not lost before a new one has come. Where it cannot be moved it
/// stays.
class OldFile {
public:
    explicit OldFile(const QString& path)
        : path_(path), moved_(QFileInfo(path).isFile() && QFile::rename(path, aside())) {}
    ~OldFile() {
        if (!moved_)
            return;
        if (QFileInfo::exists(path_))
            QFile::remove(aside());
        else
            QFile::rename(aside(), path_);
    }
    OldFile(const OldFile&) = delete;
    OldFile& operator=(const OldFile&) = delete;

private:
    QString aside() const { return path_ + ".old"; }

    const QString path_;
    const bool moved_;
};

} // namespace

ExportGameList::ExportGameList(Shared& shared) : shared_(shared) {
    shared_.frmMain.cmdSaveList.Click = [this] { exportList(); };
}

void ExportGameList::exportList() {
    Dialogs& dialogs = shared_.ports.dialogs;
    const auto path = dialogs.saveFile({.title = "Save List of Games As",
                                        .filter = kTextFilter,
                                        .folder = shared_.config.AppFolder(),
                                        .fileName = "games.txt",
                                        .extension = "*.txt",
                                        .askBeforeOverwriting = true});
    if (!path || path->isEmpty())
        return;
    const OldFile old(*path);
    const auto format = dialogs.input(kFormatPrompt, "Export Game List", QString());
    TryToReplaceFile(*path, listText(format.value_or(QString())).toLocal8Bit());
}

QString ExportGameList::listText(const QString& format) const {
    const ui::ListView& lstHD = shared_.frmMain.lstHD;
    const qsizetype width = paddedWidth();
    const QString pattern = numberPattern(lstHD.count());
    QString text;
    for (int i = 0; i < lstHD.count(); ++i) {
        const ui::ListView::Row& row = lstHD.row(i);
        const QString line = FormatNumber(i + 1, pattern) + ". " + row.text.leftJustified(width) + format;
        text += withWordsReplaced(line, row.subItems) + "\r\n";
    }
    return text;
}

/// A name that is longer than all before it gets one blank behind it; one that fills the width exactly gets
/// none.
qsizetype ExportGameList::paddedWidth() const {
    const ui::ListView& lstHD = shared_.frmMain.lstHD;
    qsizetype width = 0;
    for (int i = 0; i < lstHD.count(); ++i) {
        const qsizetype length = lstHD.row(i).text.size();
        if (length > width)
            width = length + 1;
    }
    return width;
}

} // namespace tarnwell
