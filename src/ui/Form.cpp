#include "ui/Form.h"

#include "ui/AccessibleRole.h"
#include "ui/Label.h"
#include "ui/SectionCard.h"

#include <QVBoxLayout>

namespace ui {

namespace {

constexpr int margin = 16;
constexpr int betweenSections = 20;
constexpr int belowTitle = 8;

} // namespace

Element form(std::vector<Element> sections) {
    auto widget = std::make_unique<QWidget>();
    auto* layout = new QVBoxLayout(widget.get());
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(betweenSections);
    for (Element& section : sections) {
        layout->addWidget(section.take().release());
    }
    layout->addStretch(1);
    return Element(std::move(widget));
}

Element section(const QString& title, std::vector<Element> rows) {
    auto widget = std::make_unique<QWidget>();
    setAccessibleRole(*widget, QAccessible::Grouping);
    widget->setAccessibleName(title);
    auto* layout = new QVBoxLayout(widget.get());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(belowTitle);
    if (!title.isEmpty()) {
        auto label = text(title, {.weight = Weight::Semibold}).take();
        layout->addWidget(label.release(), 0, Qt::AlignLeading);
    }
    auto card = std::make_unique<SectionCard>();
    for (Element& row : rows) {
        card->addRow(std::move(row));
    }
    layout->addWidget(card.release());
    return Element(std::move(widget));
}

Element labeledContent(const QString& label, Element value) {
    return hstack({}, text(label), spacer(), std::move(value));
}

} // namespace ui
