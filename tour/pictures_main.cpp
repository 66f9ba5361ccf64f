#include "tour/kept_pictures.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cstdio>

using namespace tarnwell::tour;

namespace {

constexpr char kUsage[] = "usage: tarnwell-pictures check KEPT_FOLDER TOUR_FOLDER      which kept pictures "
                          "show other windows than the tour\n"
                          "       tarnwell-pictures renew KEPT_FOLDER TOUR_FOLDER [NAME...]   take those, "
                          "and NAME, from the tour\n";

void tell(const QString& name, const QString& what) {
    std::printf("%s: %s\n", qPrintable(name), qPrintable(what));
}

QStringList namesOfPictures(const QDir& folder) {
    QStringList names;
    for (const QFileInfo& file : folder.entryInfoList({"*.png"}))
        names += file.completeBaseName();
    return names;
}

bool replace(const QString& file, const QString& with) {
    QFile::remove(file);
    return QFile::copy(with, file);
}

/// Returns whether the kept picture shows what the tour has seen.
bool check(const QDir& kept, const QDir& tour, const QString& name) {
    const QString what = difference(QImage(kept.filePath(name + ".png")), freshPicture(tour, name));
    if (!what.isEmpty())
        tell(name, what);
    return what.isEmpty();
}

bool renew(const QDir& kept, const QDir& tour, const QString& name) {
    const QString file = kept.filePath(name + ".png"), fresh = freshFile(tour, name);
    if (fresh.isEmpty())
        tell(name, "the tour has no step of this name");
    else if (difference(QImage(file), QImage(fresh)).isEmpty())
        return true;
    else if (!replace(file, fresh))
        tell(name, "cannot be written");
    else
        tell(name, "renewed");
    return !fresh.isEmpty();
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    const QString command = arguments.value(0);
    if (arguments.size() < 3 || !QStringList{"check", "renew"}.contains(command)) {
        std::fputs(kUsage, stderr);
        return 2;
    }
    const QDir kept(arguments[1]), tour(arguments[2]);
    QStringList names = namesOfPictures(kept) + arguments.mid(3);
    names.removeDuplicates();
    int wrong = names.isEmpty() ? 1 : 0;
    for (const QString& name : names)
        wrong += (command == "check" ? check(kept, tour, name) : renew(kept, tour, name)) ? 0 : 1;
    if (command == "check" && wrong > 0)
        std::puts("`./dev pictures` renews the pictures of the guide; look at them before you commit them.");
    return wrong == 0 ? 0 : 1;
}
