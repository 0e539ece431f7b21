#include "bar/views/FormattingBarView.h"

#include "bar/views/ColorPickerButton.h"
#include "bar/views/HeadingButton.h"
#include "bar/views/IconButton.h"
#include "bar/views/VisualEffectBackground.h"
#include "ui/Modifiers.h"
#include "ui/Stack.h"

namespace bar {

ui::Element FormattingBarView::body() const {
    using enum TextFormat;
    const auto icon = [this](TextFormat format) {
        return IconButton{symbolName(format), rawValue(format),
                          [viewModel = viewModel, format] { viewModel->onFormat(format); }};
    };
    const auto divider = [] {
        return ui::divider(Qt::Vertical) | ui::frame({.height = 24}) |
               ui::padding({.horizontal = 4}) | ui::identifier(QStringLiteral("divider"));
    };
    const ui::RoundedRectangle shape{10};

    return ui::hstack({.spacing = 2},                                                          //
                      icon(Bold), icon(Italic), icon(Underline), icon(Strikethrough),          //
                      divider(),                                                               //
                      ColorPickerButton{viewModel},                                            //
                      divider(),                                                               //
                      HeadingButton{viewModel}, icon(Monospaced), icon(Link),                  //
                      divider(),                                                               //
                      icon(BulletList), icon(DashedList), icon(NumberedList), icon(Checklist), //
                      divider(),                                                               //
                      icon(DecreaseIndent), icon(IncreaseIndent),                              //
                      divider(),                                                               //
                      icon(DecreaseTextSize), icon(IncreaseTextSize),                          //
                      divider(),                                                               //
                      icon(RemoveFormatting)) |
           ui::padding({.horizontal = 10, .vertical = 6}) |
           ui::background(shape, VisualEffectBackground{VisualEffectMaterial::HudWindow,
                                                        VisualEffectBlendingMode::BehindWindow}) |
           ui::border(shape, {ui::Color::Separator}, 0.5) |
           ui::identifier(QStringLiteral("FormattingBarView"));
}

} // namespace bar
