#include "fakes/FakePlatform.h"

#include "platform/qt/QtKeyPresses.h"

#include <QKeyEvent>
#include <QMenu>
#include <QWidget>

namespace fakes {

namespace {

struct FakeSource final : platform::EventSource {};

struct FakeKeyEvent final : platform::KeyEvent {
    PostedKey key;

    void setFlags(std::uint64_t flags) override { key.flags = flags; }
};

/// A key that is pressed by its name has no scan code; these have their place on every keyboard.
std::optional<platform::KeyCode> positionByName(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Return:
        return 36;
    case Qt::Key_Escape:
        return 53;
    case Qt::Key_Down:
        return 125;
    case Qt::Key_Up:
        return 126;
    default:
        return std::nullopt;
    }
}

/// Makes an implementation, puts it into the platform, and hands out the reference.
template <typename Fake, typename Interface, typename... Arguments>
Fake& put(std::unique_ptr<Interface>& slot, Arguments&&... arguments) {
    auto fake = std::make_unique<Fake>(std::forward<Arguments>(arguments)...);
    Fake& reference = *fake;
    slot = std::move(fake);
    return reference;
}

} // namespace

bool FakeAccessibility::isProcessTrusted(platform::TrustPrompt prompt) {
    trustQuestions.push_back(prompt);
    return trusted;
}

platform::Accessibility::Element
FakeAccessibility::applicationElement(platform::ProcessIdentifier) {
    return std::make_shared<FakeElement>();
}

platform::Accessibility::Element FakeAccessibility::focusedElement(const Element&) {
    ++calls;
    return focusReadable ? std::make_shared<FakeElement>() : nullptr;
}

std::optional<QString> FakeAccessibility::selectedText(const Element&) {
    ++calls;
    return text;
}

platform::Accessibility::TextRange FakeAccessibility::selectedTextRange(const Element&) {
    ++calls;
    return rangeReadable ? std::make_shared<FakeTextRange>() : nullptr;
}

std::optional<platform::Rect> FakeAccessibility::boundsForRange(const Element&, const TextRange&) {
    ++calls;
    return bounds;
}

void FakeWorkspace::activate(const platform::RunningApplication& application) {
    record.push_back("activate " + std::to_string(application.processIdentifier));
}

bool FakeWorkspace::openUrl(const QUrl& url) {
    opened.push_back(url);
    return opens;
}

std::unique_ptr<platform::EventSource>
FakeKeyboardEvents::createSource(platform::EventSourceState state) {
    sources.push_back(state);
    return std::make_unique<FakeSource>();
}

std::unique_ptr<platform::KeyEvent>
FakeKeyboardEvents::createKeyEvent(const platform::EventSource*, platform::KeyCode key,
                                   platform::KeyDirection direction) {
    const bool possible =
        direction == platform::KeyDirection::Down ? keyDownCanBeMade : keyUpCanBeMade;
    if (!possible) {
        return nullptr;
    }
    auto event = std::make_unique<FakeKeyEvent>();
    event->key.keyCode = key;
    event->key.direction = direction;
    return event;
}

void FakeKeyboardEvents::post(const platform::KeyEvent& event, platform::EventTap tap) {
    PostedKey key = static_cast<const FakeKeyEvent&>(event).key;
    key.tap = tap;
    key.time = runLoop.now();
    posted.push_back(key);
    record.push_back((key.direction == platform::KeyDirection::Down ? "key down " : "key up ") +
                     std::to_string(key.keyCode));
}

std::optional<platform::DefaultsValue> FakeUserDefaults::object(const QString& key) const {
    const auto found = values.find(key);
    return found == values.end() ? std::nullopt : std::optional(found->second);
}

void FakeUserDefaults::set(const QString& key, const platform::DefaultsValue& value) {
    values.insert_or_assign(key, value);
    writes.push_back(key);
}

platform::LoginItem::Error FakeLoginItem::registerItem() {
    requests.push_back(true);
    return error;
}

platform::LoginItem::Error FakeLoginItem::unregisterItem() {
    requests.push_back(false);
    return error;
}

core::Registration FakeStatusItem::show(const QString&, const QIcon& icon,
                                        const QString& accessibilityDescription, QMenu& m) {
    hasIcon = !icon.isNull();
    description = accessibilityDescription;
    menu = &m;
    return core::Registration([this] { menu = nullptr; });
}

void FakeWindowServer::makeFloating(QWidget& window, platform::KeyboardFocus keyboard) {
    const bool never = keyboard == platform::KeyboardFocus::Never;
    window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    window.setAttribute(Qt::WA_ShowWithoutActivating, never);
    record.emplace_back(never ? "make floating" : "make floating with the keyboard");
}

void FakeWindowServer::setFrame(QWidget& window, const platform::Rect& frame) {
    frames[&window] = frame;
    window.setGeometry(static_cast<int>(frame.x), static_cast<int>(-frame.maxY()),
                       static_cast<int>(frame.width), static_cast<int>(frame.height));
}

platform::Rect FakeWindowServer::frame(const QWidget& window) {
    return frames[&window];
}

platform::Rect FakeWindowServer::frameOnScreen(const QWidget& part) {
    const platform::Rect whole = frames[part.window()];
    const QPoint corner = part.mapTo(part.window(), QPoint(0, 0));
    return {whole.x + corner.x(), whole.maxY() - corner.y() - part.height(),
            static_cast<double>(part.width()), static_cast<double>(part.height())};
}

void FakeWindowServer::setMaterial(const QWidget& part, const platform::WindowMaterial& wanted) {
    material = wanted;
    materialPlace = QRect(part.mapTo(part.window(), QPoint(0, 0)), part.size());
}

void FakeWindowServer::orderFront(QWidget& window) {
    record.emplace_back("order front");
    window.show();
}

void FakeWindowServer::orderOut(QWidget& window) {
    record.emplace_back("order out");
    window.hide();
}

void FakeWindowServer::bringToFront(QWidget& window, const platform::ActivationToken& token) {
    record.emplace_back("bring to front");
    tokens.push_back(token);
    window.show();
    window.activateWindow();
}

core::Registration FakeProgramInstance::setRequestHandler(Handler h) {
    handler = std::move(h);
    return core::Registration([this] { handler = nullptr; });
}

void FakeApplicationBundles::add(const QString& folder, const QString& entry,
                                 platform::ApplicationBundle bundle) {
    if (!order.contains(folder)) {
        order.append(folder);
    }
    listing[folder].append(entry);
    byPath[folder + QLatin1Char('/') + entry] = std::move(bundle);
}

std::optional<platform::ApplicationBundle> FakeApplicationBundles::bundle(const QString& path) {
    const auto found = byPath.find(path);
    return found == byPath.end() ? std::nullopt : std::optional(found->second);
}

QImage FakeApplicationIcons::picture(const platform::IconReference& icon, int side,
                                     double devicePixelRatio) {
    asked.push_back(icon.nameOrPath);
    if (!found) {
        return {};
    }
    const int pixels = static_cast<int>(side * devicePixelRatio);
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::red);
    image.setDevicePixelRatio(devicePixelRatio);
    return image;
}

QImage FakeSymbols::mask(const QString&, const platform::SymbolStyle& style,
                         double devicePixelRatio) {
    const int side = static_cast<int>(style.pointSize * devicePixelRatio);
    QImage image(side, side, QImage::Format_Alpha8);
    image.fill(255);
    image.setDevicePixelRatio(devicePixelRatio);
    return image;
}

FakePlatform::FakePlatform()
    : programInstance(put<FakeProgramInstance>(platform.programInstance))
    , runLoop(put<VirtualRunLoop>(platform.runLoop))
    , systemInfo(put<FakeSystemInfo>(platform.systemInfo))
    , userDefaults(put<FakeUserDefaults>(platform.userDefaults))
    , loginItem(put<FakeLoginItem>(platform.loginItem))
    , screens(put<FakeScreens>(platform.screens))
    , screenCapture(put<FakeScreenCapture>(platform.screenCapture))
    , symbols(put<FakeSymbols>(platform.symbols))
    , windowServer(put<FakeWindowServer>(platform.windowServer, record))
    , workspace(put<FakeWorkspace>(platform.workspace, record))
    , applicationBundles(put<FakeApplicationBundles>(platform.applicationBundles))
    , applicationIcons(put<FakeApplicationIcons>(platform.applicationIcons))
    , accessibility(put<FakeAccessibility>(platform.accessibility))
    , keyboardEvents(put<FakeKeyboardEvents>(platform.keyboardEvents, record, runLoop))
    , globalKeyMonitor(put<FakeGlobalKeyMonitor>(platform.globalKeyMonitor))
    , pointerMonitor(put<FakePointerMonitor>(platform.pointerMonitor))
    , colorPanel(put<FakeColorPanel>(platform.colorPanel))
    , statusItem(put<FakeStatusItem>(platform.statusItem))
    , alerts(put<FakeAlerts>(platform.alerts))
    , updater(put<FakeUpdater>(platform.updater))
    , current_(platform) {
    platform.keyPresses = std::make_unique<::platform::QtKeyPresses>(
        [this](const QKeyEvent& event) -> std::optional<::platform::KeyCode> {
            const auto found = keyPositions.find(event.nativeScanCode());
            return found != keyPositions.end() ? std::optional(found->second)
                                               : positionByName(event);
        });
}

} // namespace fakes
