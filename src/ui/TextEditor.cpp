#include "ui/TextEditor.h"

#include "ui/FocusRing.h"
#include "ui/ScrollBar.h"
#include "ui/Theme.h"

#include <QEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QScopedValueRollback>

namespace ui {

namespace {

constexpr int margin = 4;

class Editor final : public QPlainTextEdit {
public:
    Editor(Binding<QString> text, const TextEditorOptions& options) {
        setFont(ui::font(13, Weight::Regular));
        setFrameShape(QFrame::NoFrame);
        setTabChangesFocus(true);
        setReadOnly(options.isReadOnly);
        setMinimumHeight(options.minimumHeight);
        // Room for a border.
        setViewportMargins(1, 1, 1, 1);
        FocusRing::attach(*this, [this] { return FocusRing::Shape{QRectF(rect()), 0}; });
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        setAccessibleName(options.accessibilityLabel);
        setVerticalScrollBar(std::make_unique<ScrollBar>().release());
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        document()->setDocumentMargin(margin);
        setPlainText(text->get());
        connect(this, &QPlainTextEdit::textChanged, this, [this, text] {
            const QScopedValueRollback own(isOwnEdit_, true);
            text->set(content());
        });
        keep(*this, std::pair(text, text->observe([this](const QString& next) {
            if (!isOwnEdit_) {
                setPlainText(next);
            }
        })));
    }

    QSize sizeHint() const override { return {200, minimumHeight()}; }

private:
    /// As it was typed: the toolkit's plain text has an ordinary blank for one that does not break.
    QString content() const {
        QString text = document()->toRawText();
        text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
        return text;
    }

    bool isOwnEdit_ = false;
};

} // namespace

Element textEditor(Binding<QString> text, const TextEditorOptions& options) {
    return Element(std::make_unique<Editor>(std::move(text), options));
}

} // namespace ui
