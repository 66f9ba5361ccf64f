#include "settings/appearance.h"

#include "base/fault.h"
#include "base/text_primitives.h"

#include <cmath>

namespace tarnwell {

namespace {

const QString kFontKey = QStringLiteral("Font");
const QString kForeKey = QStringLiteral("Forecolor");
const QString kBackKey = QStringLiteral("Backcolor");
const QString kSwitchKey = QStringLiteral("UseColor");

/// Keeps its own colours, or the bar could not be told from its ground.
const QString kSpaceBar = QStringLiteral("picDiskSpace");

constexpr qint16 kLargestFontSize = 2160; // points

qint32 defaultColor(const QString& key) {
    return ConfigStore::defaultText(key).toInt();
}

/// An RGB value, or the number of a system colour with the high bit set.
bool isColor(qint32 value) {
    constexpr quint32 kRgb = 0x00ffffff, kSystemColor = 0x80000000, kLastSystemColor = 0x80000018;
    const auto bits = static_cast<quint32>(value);
    return bits <= kRgb || (bits >= kSystemColor && bits <= kLastSystemColor);
}

void giveFont(const ui::Form& form, const ui::Font& chosen, const QString& leftOut = {}) {
    for (ui::Control* control : form.controls()) {
        if (!control->hasFont() || control->name == leftOut)
            continue;
        ui::Font font = chosen;
        if (font.size <= 0)
            font.size = control->font.get().value_or(ui::Font{}).size;
        control->font = font;
    }
}

using Color = ui::Property<std::optional<std::int32_t>>;

void giveColor(const ui::Form& form, Color ui::Control::*which, qint32 color, const QString& leftOut = {}) {
    for (ui::Control* control : form.controls()) {
        if (control->hasColors() && control->name != leftOut)
            control->*which = color;
    }
}

void giveForeColor(const ui::Form& form, qint32 color, const QString& leftOut = {}) {
    giveColor(form, &ui::Control::foreColor, color, leftOut);
}

void giveBackColor(ui::Form& form, qint32 color, const QString& leftOut = {}) {
    giveColor(form, &ui::Control::backColor, color, leftOut);
    form.backColor = color;
}

Fault unreadableFont(const QString& value) {
    return Fault("The font in config.cfg cannot be read: \"" + value +
                 "\". Choose it again with the Font button in Settings & Tools.");
}

/// A field of the stored font. Its decimal sign is a point whatever the country.
qint16 wholeSize(const QString& field, const QString& value) {
    bool isNumber = false;
    const double size = field.trimmed().toDouble(&isNumber);
    if (!isNumber || std::abs(size) > kLargestFontSize)
        throw unreadableFont(value);
    return RoundToInt16(size);
}

bool isTrue(const QString& field, const QString& value) {
    const QString word = field.trimmed().toLower();
    if (word == QLatin1String("true"))
        return true;
    if (word == QLatin1String("false"))
        return false;
    bool isNumber = false;
    const double number = word.toDouble(&isNumber);
    if (!isNumber)
        throw unreadableFont(value);
    return number != 0;
}

QString word(bool value) {
    return value ? "True" : "False";
}

QString storedForm(const ui::Font& font) {
    return font.name + ',' + DecimalText(font.size) + ',' + word(font.bold) + ',' + word(font.italic) + ',';
}

} // namespace

Appearance::Appearance(Shared& shared) : shared_(shared) {
    ui::FrmSettings& frmSettings = shared_.frmSettings.untouched();
    frmSettings.cmdFont.Click = [this] { chooseFont(); };
    frmSettings.cmdForecolor.Click = [this] { chooseForeColor(); };
    frmSettings.cmdBackcolor.Click = [this] { chooseBackColor(); };
    frmSettings.chkColors.Click = [this] { switchColors(); };
    // Closed between two runs, it has gone back to the looks that it was made with.
    shared_.frmStatus.untouched().Load = [this] { dressStatusWindow(); };
}

void Appearance::load() {
    try {
        loadFont();
    } catch (const Fault& fault) {
        // A font is no reason not to start.
        shared_.message(fault.text());
    }
    if (shared_.frmSettings->chkColors.value != 0)
        loadColors();
}

void Appearance::loadFont() {
    QString value = shared_.config.text(kFontKey);
    if (value.isEmpty()) {
        value = ConfigStore::defaultText(kFontKey);
        shared_.config.write(kFontKey, value);
    }
    // The default stands for the fonts that the windows are made with.
    if (value == ConfigStore::defaultText(kFontKey))
        return;
    constexpr qsizetype kFields = 4; // name, size, bold, italic
    const QStringList fields = value.split(',');
    if (fields.size() < kFields)
        throw unreadableFont(value);
    if (!fields.mid(0, kFields).contains(QString()))
        ApplyFont(fields[0], wholeSize(fields[1], value), isTrue(fields[2], value), isTrue(fields[3], value));
}

void Appearance::loadColors() {
    qint32 fore = shared_.config.wholeNumber(kForeKey);
    qint32 back = shared_.config.wholeNumber(kBackKey);
    if (fore == 0 && back == 0) {
        fore = defaultColor(kForeKey);
        back = defaultColor(kBackKey);
        shared_.config.writeNumber(kForeKey, fore);
        shared_.config.writeNumber(kBackKey, back);
    }
    applyBoth(fore, back);
}

void Appearance::ApplyFont(const QString& name, qint16 size, bool bold, bool italic) {
    font_ = ui::Font{name, double(size), bold, italic};
    giveFont(*shared_.frmSettings, *font_);
    // The tool's output keeps its fixed pitch.
    giveFont(shared_.frmMain, *font_, "txtOutput");
    giveFont(*shared_.frmStatus, *font_);
}

void Appearance::ApplyColors(bool isFore, qint32 fore, qint32 back) {
    if (isFore && isColor(fore)) {
        foreColor_ = fore;
        giveForeColor(*shared_.frmSettings, fore);
        giveForeColor(shared_.frmMain, fore, kSpaceBar);
        giveForeColor(*shared_.frmStatus, fore);
    } else if (!isFore && isColor(back)) {
        backColor_ = back;
        giveBackColor(*shared_.frmSettings, back);
        giveBackColor(shared_.frmMain, back, kSpaceBar);
        giveBackColor(*shared_.frmStatus, back);
    }
}

void Appearance::dressStatusWindow() {
    ui::FrmStatus& frmStatus = shared_.frmStatus.untouched();
    if (font_)
        giveFont(frmStatus, *font_);
    if (foreColor_)
        giveForeColor(frmStatus, *foreColor_);
    if (backColor_)
        giveBackColor(frmStatus, *backColor_);
}

void Appearance::chooseFont() {
    const ui::Font current = shared_.frmSettings->cmdFont.font.get().value_or(ui::Font{});
    const std::optional<ui::Font> font = shared_.ports.dialogs.chooseFont(current);
    if (!font)
        return;
    ApplyFont(font->name, RoundToInt16(font->size), font->bold, font->italic);
    shared_.config.write(kFontKey, storedForm(*font));
}

void Appearance::chooseForeColor() {
    const auto color = shared_.ports.dialogs.chooseColor(shared_.config.wholeNumber(kForeKey));
    if (!color)
        return;
    ApplyColors(true, *color, 0);
    shared_.config.writeNumber(kForeKey, *color);
}

void Appearance::chooseBackColor() {
    const auto color = shared_.ports.dialogs.chooseColor(shared_.config.wholeNumber(kBackKey));
    if (!color)
        return;
    ApplyColors(false, 0, *color);
    shared_.config.writeNumber(kBackKey, *color);
}

void Appearance::switchColors() {
    const int on = shared_.frmSettings->chkColors.value;
    shared_.config.writeNumber(kSwitchKey, on);
    enableColorButtons(on != 0);
    if (on == 0) {
        applyBoth(defaultColor(kForeKey), defaultColor(kBackKey));
        return;
    }
    const qint32 fore = shared_.config.wholeNumber(kForeKey);
    const qint32 back = shared_.config.wholeNumber(kBackKey);
    if (fore != 0 || back != 0)
        applyBoth(fore, back);
}

void Appearance::applyBoth(qint32 fore, qint32 back) {
    ApplyColors(true, fore, back);
    ApplyColors(false, fore, back);
}

void Appearance::enableColorButtons(bool enable) {
    shared_.frmSettings->cmdForecolor.enabled = enable;
    shared_.frmSettings->cmdBackcolor.enabled = enable;
}

} // namespace tarnwell
