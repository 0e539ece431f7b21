#include "ui/SectionCard.h"

#include "ui/RoundedRectangle.h"
#include "ui/Theme.h"

#include <QEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace ui {

namespace {

constexpr int margin = 12;
constexpr int above = 10;
constexpr RoundedRectangle shape{8};

} // namespace

SectionCard::SectionCard() {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
}

void SectionCard::addRow(Element row) {
    auto content = row.take();
    auto cell = std::make_unique<QWidget>();
    auto* cellLayout = new QVBoxLayout(cell.get());
    cellLayout->setContentsMargins(margin, above, margin, above);
    const bool hidden =
        content->testAttribute(Qt::WA_WState_ExplicitShowHide) && content->isHidden();
    content->installEventFilter(this);
    rows_.push_back({content.get(), cell.get()});
    const bool grows =
        growingDirections(*content).testFlag(Qt::Horizontal) || content->layout() != nullptr;
    cellLayout->addWidget(content.release(), 0, grows ? Qt::Alignment() : Qt::AlignLeading);
    cell->setHidden(hidden);
    if (!hidden) {
        cell->setAttribute(Qt::WA_WState_ExplicitShowHide, false);
    }
    layout()->addWidget(cell.release());
}

bool SectionCard::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent) {
        for (const Row& row : rows_) {
            if (row.content == watched) {
                row.cell->setVisible(event->type() == QEvent::ShowToParent);
                update();
            }
        }
    }
    return false;
}

void SectionCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(shape.path(rect()), color({Color::SectionBackground}, palette()));
    const RoundedRectangle outline{shape.cornerRadius - 0.5};
    painter.strokePath(outline.path(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5)),
                       QPen(color({Color::Separator, 0.5}, palette()), 1));
    bool first = true;
    for (const Row& row : rows_) {
        if (row.cell->isHidden()) {
            continue;
        }
        if (!first) {
            painter.fillRect(QRect(margin, row.cell->y(), width() - 2 * margin, 1),
                             color({Color::Separator, 0.6}, palette()));
        }
        first = false;
    }
}

} // namespace ui
