#pragma once

#include "ui/Element.h"

#include <vector>

namespace ui {

/// The rows of a section on their rounded card. A row that is hidden leaves nothing behind.
class SectionCard final : public QWidget {
public:
    SectionCard();

    void addRow(Element row);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Row {
        QWidget* content;
        QWidget* cell;
    };

    std::vector<Row> rows_;
};

} // namespace ui
