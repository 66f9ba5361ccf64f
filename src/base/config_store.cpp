#include "base/config_store.h"

#include "base/replace_file.h"
#include "base/text_primitives.h"
#include "platform/ports.h"
#include "ui/frm_main.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarnwell {

namespace {

constexpr qsizetype kLongestValue = 254;
const QString kSection = QStringLiteral("tarnwell");

struct Default {
    const char* key;
    const char* value;
};

constexpr Default kDefaults[] = {
    {"DefaultISO", ""},
    {"ClosePS2", "0"},
    {"TurnOffPC", "0"},
    {"StandbyPC", "0"},
    {"TurnOffPS2", "0"},
    {"IP", ui::FrmMain::kFirstAddress},
    {"StayOnTop", "1"},
    {"ViewOutput", "0"},
    {"BalloonTips", "0"},
    {"Backcolor", "-2147483633"}, // the system's button face
    {"Forecolor", "-2147483630"}, // the system's button text
    {"UseColor", "0"},
    {"Font", "Tahoma,8,False,False,"},
    {"StatusServer", "0"},
    {"CloseStatus", "1"},
    {"TaskSound", "[none selected]"},
    {"TasksSound", "[none selected]"},
};

/// A missing file is an empty one. Nothing if it is there but cannot be read at this moment.
std::optional<IniText> load(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return file.exists() ? std::nullopt : std::optional(IniText(QByteArray()));
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return std::nullopt;
    return IniText(bytes);
}

QString valueIn(const std::optional<IniText>& ini, const QString& section, const QString& key) {
    const auto value = ini ? ini->value(section, key) : std::nullopt;
    return value.value_or(QString()).left(kLongestValue);
}

} // namespace

QString ConfigStore::AppFolder() const {
    return WithSeparator(folders_.programFolder());
}

QString ConfigStore::ToolPath() const {
    return AppFolder() + "tarnwell.exe";
}

QString ConfigStore::path() const {
    return AppFolder() + "config.cfg";
}

bool ConfigStore::exists() const {
    return FileExists(path());
}

bool ConfigStore::canBeWritten() const {
    return QFile(path()).open(QIODevice::ReadWrite | QIODevice::ExistingOnly);
}

bool ConfigStore::toolExists() const {
    return FileExists(ToolPath());
}

QString ConfigStore::text(const QString& key) const {
    return held_ ? valueIn(held_, kSection, key) : ConfigRead(kSection, key, path());
}

double ConfigStore::number(const QString& key) const {
    return Val(text(key));
}

int ConfigStore::wholeNumber(const QString& key) const {
    constexpr double lowest = std::numeric_limits<int>::min(), highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(std::nearbyint(number(key)), lowest, highest));
}

void ConfigStore::write(const QString& key, const QString& value) const {
    ConfigWrite(kSection, key, value, path());
    if (held_)
        held_ = load(path());
}

ConfigStore::OneReading::OneReading(const ConfigStore& store) : store_(store) {
    store_.held_ = load(store_.path());
}

QString ConfigStore::defaultText(const QString& key) {
    const auto* found = std::ranges::find_if(kDefaults, [&](const Default& d) { return key == d.key; });
    return found == std::end(kDefaults) ? QString() : found->value;
}

void ConfigStore::WriteDefaultConfig() const {
    std::optional<IniText> ini = load(path());
    if (!ini)
        return;
    for (const auto& [key, value] : kDefaults)
        ini->setValue(kSection, key, value);
    TryToReplaceFile(path(), ini->bytes());
}

bool FileExists(const QString& path) {
    const QFileInfo file(path);
    const QString name = file.fileName();
    if (!name.contains('*') && !name.contains('?'))
        return file.isFile();
    return !QDir(file.path()).entryList({name}, QDir::Files).isEmpty();
}

bool DirExists(const QString& path) {
    return !path.isEmpty() && QFileInfo(path).isDir();
}

QString WithSeparator(const QString& folder) {
    return folder.endsWith(QDir::separator()) ? folder : folder + QDir::separator();
}

QString ConfigRead(const QString& section, const QString& key, const QString& path) {
    return valueIn(load(path), section, key);
}

void ConfigWrite(const QString& section, const QString& key, const QString& value, const QString& path) {
    std::optional<IniText> ini = load(path);
    if (!ini)
        return; // one setting is not worth all the others
    const QByteArray before = ini->bytes();
    ini->setValue(section, key, value);
    // Replacing a file waits for the disk, and settings are mostly written as they stand.
    if (ini->bytes() != before)
        TryToReplaceFile(path, ini->bytes());
}

} // namespace tarnwell
