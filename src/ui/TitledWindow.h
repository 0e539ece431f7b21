#pragma once

#include "ui/Element.h"

namespace ui {

/// A window with a title and a close button, as large as it was made. Closing, by Control+W too,
/// hides it; the program goes on. It is centred on its screen when it is first shown.
class TitledWindow final : public QWidget {
public:
    TitledWindow(const QString& title, QSize contentSize);

    /// Replaces what the window shows; what it showed before is deleted.
    void setContent(Element content);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QWidget* content_ = nullptr;
    bool centred_ = false;
};

} // namespace ui
