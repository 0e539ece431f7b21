#include "ui/TabView.h"

#include "ui/AccessibleRole.h"
#include "ui/SegmentStrip.h"
#include "ui/Stack.h"

#include <QStackedLayout>

namespace ui {

namespace {

constexpr int aboveStrip = 12;

} // namespace

Element tabView(std::vector<Tab> tabs) {
    auto strip = std::make_unique<SegmentStrip>();
    auto pages = std::make_unique<QWidget>();
    pages->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    auto* layout = new QStackedLayout(pages.get());
    for (Tab& tab : tabs) {
        strip->addSegment(tab.symbol, tab.title);
        auto page = tab.content.take();
        setAccessibleRole(*page, QAccessible::Grouping);
        page->setAccessibleName(tab.title);
        layout->addWidget(page.release());
    }
    QObject::connect(strip.get(), &QTabBar::currentChanged, layout,
                     &QStackedLayout::setCurrentIndex);
    Element bar = wrapped(Element(std::move(strip)));
    bar.widget().layout()->setContentsMargins(0, aboveStrip, 0, 0);
    return vstack({.spacing = 0}, std::move(bar), Element(std::move(pages)));
}

} // namespace ui
