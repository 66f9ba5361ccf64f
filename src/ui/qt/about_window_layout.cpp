#include "ui/qt/about_window_layout.h"

#include "ui/qt/application_icon.h"
#include "ui/qt/layout_parts.h"

#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>

namespace tarnwell::view {

namespace {

// The inside of the window, in twips.
constexpr int kAboutWidth = 4500;
constexpr int kAboutHeight = 2970;

constexpr int kPictureSize = 720;  ///< twips
constexpr double kTitleSize = 1.8; ///< of the program's name, against the font around it
constexpr int kLinesOfThanks = 4;

/// The links stand in the middle of their frames.
void centre(QWidget* link, QWidget* frame) {
    auto* layout = new QHBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(link, 0, Qt::AlignCenter);
}

} // namespace

AboutWindowLayout::AboutWindowLayout(ui::FrmAbout& form, ControlBinder& controls, QWidget& content)
    : form_(form), controls_(controls), content_(content), picture_(new QLabel(&content)) {
    const auto& widget = *this;
    QVBoxLayout* rows = column(&content_);
    rows->addLayout(title());
    rows->addWidget(widget(form_.Line1));
    rows->addLayout(links());
    rows->addWidget(widget(form_.Line2));
    auto* thanks = static_cast<QPlainTextEdit*>(widget(form_.txtAbout));
    thanks->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    thanks->setMinimumHeight(kLinesOfThanks * thanks->fontMetrics().lineSpacing() +
                             2 * static_cast<int>(thanks->document()->documentMargin()) +
                             2 * thanks->frameWidth());
    rows->addWidget(thanks, 1);
}

QLayout* AboutWindowLayout::title() {
    const auto& widget = *this;
    QWidget* name = widget(form_.Label1);
    QFont large = name->font();
    large.setPointSizeF(large.pointSizeF() * kTitleSize);
    large.setBold(true);
    name->setFont(large);

    QHBoxLayout* versionAndAuthor = row({widget(form_.Label2), widget(form_.Label3)});
    versionAndAuthor->addStretch();
    auto* texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addStretch();
    texts->addWidget(name, 0, Qt::AlignLeading);
    texts->addLayout(versionAndAuthor);
    texts->addStretch();
    QHBoxLayout* beside = row({picture_});
    beside->setSpacing(2 * kGap);
    beside->addLayout(texts, 1);
    return beside;
}

QLayout* AboutWindowLayout::links() {
    const auto& widget = *this;
    auto* grid = new QGridLayout;
    grid->setSpacing(kGap);
    const std::pair<ui::Frame&, ui::Label&> frames[] = {{form_.Frame1, form_.lblCommunitySite},
                                                        {form_.Frame2, form_.lblThread},
                                                        {form_.Frame3, form_.Label4},
                                                        {form_.Frame4, form_.Label5}};
    constexpr int kColumns = 2;
    int place = 0;
    for (const auto& [frame, link] : frames) {
        centre(widget(link), widget(frame));
        grid->addWidget(widget(frame), place / kColumns, place % kColumns);
        grid->setColumnStretch(place % kColumns, 1);
        ++place;
    }
    return grid;
}

double AboutWindowLayout::neededPixelsPerTwip() const {
    return std::max(pixelsPerTwip(content_, kAboutWidth, kAboutHeight),
                    pixelsPerTwip((*this)(form_.Label2)->font()));
}

void AboutWindowLayout::scaleTo(const TwipScale& scale) {
    const int size = scale.pixels(kPictureSize);
    picture_->setPixmap(applicationIcon().pixmap({size, size}, content_.devicePixelRatioF()));
}

} // namespace tarnwell::view
