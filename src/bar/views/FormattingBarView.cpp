#include "bar/views/FormattingBarView.h"

#include "bar/views/ColorPickerButton.h"
#include "bar/views/HeadingButton.h"
#include "bar/views/IconButton.h"
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
                      icon(bold), icon(italic), icon(underline), icon(strikethrough),          //
                      divider(),                                                               //
                      ColorPickerButton{viewModel},                                            //
                      divider(),                                                               //
                      HeadingButton{viewModel}, icon(monospaced), icon(link),                  //
                      divider(),                                                               //
                      icon(bulletList), icon(dashedList), icon(numberedList), icon(checklist), //
                      divider(),                                                               //
                      icon(decreaseIndent), icon(increaseIndent),                              //
                      divider(),                                                               //
                      icon(decreaseTextSize), icon(increaseTextSize),                          //
                      divider(),                                                               //
                      icon(removeFormatting)) |
           ui::padding({.horizontal = 10, .vertical = 6}) | ui::background(shape, background) |
           ui::border(shape, {ui::Color::Separator}, 0.5) |
           ui::identifier(QStringLiteral("FormattingBarView"));
}

} // namespace bar
