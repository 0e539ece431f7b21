#include "settings/views/AppIcon.h"

#include "platform/Platform.h"
#include "ui/Label.h"

#include <QHash>
#include <QPainter>
#include <QPointer>
#include <QTimer>

#include <deque>

namespace settings {

namespace {

constexpr int side = 24;

/// Pictures that were fetched, and those that wait for their turn.
class IconShelf final : public QObject {
public:
    static IconShelf& shared() {
        static IconShelf shelf;
        return shelf;
    }

    /// Nothing while the picture has not been fetched; then `widget` is drawn again.
    std::optional<QImage> picture(const platform::IconReference& icon, QWidget& widget) {
        const Key key{icon.nameOrPath, widget.devicePixelRatioF()};
        if (const auto found = fetched_.constFind(key); found != fetched_.constEnd()) {
            return *found;
        }
        if (waiting_.empty()) {
            scheduleFetch();
        }
        waiting_.push_back({key, &widget});
        return std::nullopt;
    }

private:
    using Key = std::pair<QString, double>;
    struct Wish {
        Key key;
        QPointer<QWidget> widget;
    };

    void scheduleFetch() {
        QTimer::singleShot(0, this, [this] { fetchOne(); });
    }

    void fetchOne() {
        while (!waiting_.empty()) {
            const Wish wish = waiting_.front();
            waiting_.pop_front();
            if (!wish.widget || !wish.widget->isVisible()) {
                continue; // scrolled away meanwhile
            }
            const bool isNew = !fetched_.contains(wish.key);
            if (isNew) {
                fetched_.insert(wish.key, platform::current().applicationIcons->picture(
                                              {wish.key.first}, side, wish.key.second));
            }
            wish.widget->update();
            if (isNew) {
                break;
            }
        }
        if (!waiting_.empty()) {
            scheduleFetch();
        }
    }

    QHash<Key, QImage> fetched_;
    std::deque<Wish> waiting_;
};

class Picture final : public QWidget {
public:
    explicit Picture(std::optional<platform::IconReference> icon)
        : icon_(std::move(icon)) {
        setFixedSize(side, side);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        ui::Element symbol = ui::symbol(QStringLiteral("app"));
        symbol_ = &symbol.widget();
        ui::embed(*this, std::move(symbol));
        symbol_->setVisible(!icon_);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        if (!icon_) {
            return;
        }
        const auto picture = IconShelf::shared().picture(*icon_, *this);
        if (!picture) {
            return;
        }
        if (picture->isNull()) {
            icon_.reset();
            // Not from within the drawing.
            QMetaObject::invokeMethod(
                this, [this] { symbol_->show(); }, Qt::QueuedConnection);
            return;
        }
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(rect(), *picture);
    }

private:
    QWidget* symbol_ = nullptr;
    std::optional<platform::IconReference> icon_;
};

} // namespace

ui::Element AppIcon::body() const {
    return ui::Element(std::make_unique<Picture>(icon));
}

} // namespace settings
