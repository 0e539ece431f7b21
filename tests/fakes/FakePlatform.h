#pragma once

#include "core/Observers.h"
#include "fakes/VirtualRunLoop.h"
#include "platform/Platform.h"

#include <map>
#include <string>
#include <vector>

namespace fakes {

/// What the fakes were asked to do, in order, as short lines such as "activate 42".
using Record = std::vector<std::string>;

struct FakeElement final : platform::AccessibilityElement {};
struct FakeTextRange final : platform::AccessibilityTextRange {};

struct FakeAccessibility final : platform::Accessibility {
    bool trusted = true;
    std::vector<platform::TrustPrompt> trustQuestions;
    bool focusReadable = true;
    std::optional<QString> text = QString();
    bool rangeReadable = true;
    std::optional<platform::Rect> bounds;
    int calls = 0;

    bool isProcessTrusted(platform::TrustPrompt prompt) override;
    Element applicationElement(platform::ProcessIdentifier process) override;
    Element focusedElement(const Element& application) override;
    std::optional<QString> selectedText(const Element& element) override;
    TextRange selectedTextRange(const Element& element) override;
    std::optional<platform::Rect> boundsForRange(const Element& element,
                                                 const TextRange& range) override;
};

struct FakeProgramInstance final : platform::ProgramInstance {
    Claim answer = Claim::First;
    Handler handler;

    Claim claim(platform::InstanceRequest::Kind) override { return answer; }
    core::Registration setRequestHandler(Handler h) override;
};

/// Folders of bundles as a test writes them down.
struct FakeApplicationBundles final : platform::ApplicationBundles {
    QStringList order;
    std::map<QString, QStringList> listing;
    std::map<QString, platform::ApplicationBundle> byPath;

    void add(const QString& folder, const QString& entry, platform::ApplicationBundle bundle);
    QStringList folders() override { return order; }
    QStringList entries(const QString& folder) override { return listing[folder]; }
    QString suffix() override { return QStringLiteral(".app"); }
    std::optional<platform::ApplicationBundle> bundle(const QString& path) override;
    std::optional<platform::IconReference> iconForFile(const QString& path) override {
        return platform::IconReference{path};
    }
};

struct FakeApplicationIcons final : platform::ApplicationIcons {
    /// What picture() was asked for, in order.
    std::vector<QString> asked;
    bool found = true;

    QImage picture(const platform::IconReference& icon, int side, double devicePixelRatio) override;
};

struct FakeWorkspace final : platform::Workspace {
    explicit FakeWorkspace(Record& r)
        : record(r) {}
    Record& record;
    std::optional<platform::RunningApplication> frontmost;
    std::vector<platform::RunningApplication> running;
    std::vector<QUrl> opened;
    bool opens = true;

    std::optional<platform::RunningApplication> frontmostApplication() override {
        return frontmost;
    }
    std::vector<platform::RunningApplication> runningApplications() override { return running; }
    void activate(const platform::RunningApplication& application) override;
    bool openUrl(const QUrl& url) override;
};

struct PostedKey {
    platform::KeyCode keyCode = 0;
    platform::KeyDirection direction = platform::KeyDirection::Down;
    /// Empty: the flags that the source gives.
    std::optional<std::uint64_t> flags;
    platform::EventTap tap = platform::EventTap::Hid;
    double time = 0;
};

struct FakeKeyboardEvents final : platform::KeyboardEvents {
    FakeKeyboardEvents(Record& r, VirtualRunLoop& l)
        : record(r)
        , runLoop(l) {}
    Record& record;
    VirtualRunLoop& runLoop;
    bool keyDownCanBeMade = true;
    bool keyUpCanBeMade = true;
    std::vector<platform::EventSourceState> sources;
    std::vector<PostedKey> posted;

    std::unique_ptr<platform::EventSource> createSource(platform::EventSourceState state) override;
    std::unique_ptr<platform::KeyEvent> createKeyEvent(const platform::EventSource* source,
                                                       platform::KeyCode key,
                                                       platform::KeyDirection direction) override;
    void post(const platform::KeyEvent& event, platform::EventTap tap) override;
};

struct FakeGlobalKeyMonitor final : platform::GlobalKeyMonitor {
    core::Observers<const platform::KeyDownEvent&> keyDowns;

    core::Registration addKeyDownMonitor(Handler handler) override {
        return keyDowns.add(std::move(handler));
    }
    void press(platform::KeyCode key, std::uint64_t flags) { keyDowns.notify({key, flags}); }
};

struct FakePointerMonitor final : platform::PointerMonitor {
    core::Observers<const platform::DismissEvent&> events;

    core::Registration addDismissMonitor(Handler handler) override {
        return events.add(std::move(handler));
    }
};

struct FakeScreens final : platform::Screens {
    std::vector<platform::Screen> all{{{0, 0, 1920, 1080}, {0, 0, 1920, 1055}}};
    std::optional<platform::Screen> main = all.front();
    platform::Point pointer;

    std::vector<platform::Screen> screens() override { return all; }
    std::optional<platform::Screen> mainScreen() override { return main; }
    platform::Point pointerLocation() override { return pointer; }
};

struct FakeScreenCapture final : platform::ScreenCapture {
    std::int64_t keyWindow = 0;
    QImage picture;
    /// The window of each picture that was taken.
    std::vector<std::uint32_t> taken;

    std::int64_t keyWindowNumber() override { return keyWindow; }
    QImage pictureBelow(std::uint32_t window) override {
        taken.push_back(window);
        return picture;
    }
};

struct FakeUserDefaults final : platform::UserDefaults {
    std::map<QString, platform::DefaultsValue> values;
    /// The key of each write, in order.
    std::vector<QString> writes;

    std::optional<platform::DefaultsValue> object(const QString& key) const override;
    void set(const QString& key, const platform::DefaultsValue& value) override;
};

struct FakeLoginItem final : platform::LoginItem {
    platform::LoginItemStatus current = platform::LoginItemStatus::NotRegistered;
    Error error;
    /// True for each registration, false for each unregistration.
    std::vector<bool> requests;

    platform::LoginItemStatus status() override { return current; }
    Error registerItem() override;
    Error unregisterItem() override;
};

struct FakeColorPanel final : platform::ColorPanel {
    std::vector<platform::ColorPanelMode> modes;
    platform::Rect panelFrame{0, 0, 300, 400};
    std::vector<platform::Point> origins;

    void setMode(platform::ColorPanelMode mode) override { modes.push_back(mode); }
    platform::Rect frame() override { return panelFrame; }
    void setFrameOrigin(platform::Point origin) override { origins.push_back(origin); }
};

struct FakeStatusItem final : platform::StatusItem {
    QString description;
    QMenu* menu = nullptr;
    bool hasIcon = false;

    core::Registration show(const QString& symbolName, const QIcon& icon,
                            const QString& accessibilityDescription, QMenu& m) override;
    platform::MenuClosing menuClosing() const override { return platform::MenuClosing::Guessed; }
};

struct FakeAlerts final : platform::Alerts {
    std::vector<platform::Alert> shown;
    int answer = firstButtonReturn;

    int runModal(const platform::Alert& alert) override {
        shown.push_back(alert);
        return answer;
    }
};

/// Remembers frames exactly and really shows and hides the widgets, so that offscreen tests can
/// look at them.
struct FakeWindowServer final : platform::WindowServer {
    explicit FakeWindowServer(Record& r)
        : record(r) {}
    Record& record;
    std::map<const QWidget*, platform::Rect> frames;
    bool translucency = true;
    bool materials = false;
    platform::WindowMaterial material;
    QRect materialPlace;
    /// One for each call of bringToFront().
    std::vector<platform::ActivationToken> tokens;

    void makeFloating(QWidget& window, platform::KeyboardFocus keyboard) override;
    void setFrame(QWidget& window, const platform::Rect& frame) override;
    platform::Rect frame(const QWidget& window) override;
    platform::Rect frameOnScreen(const QWidget& part) override;
    void orderFront(QWidget& window) override;
    void orderOut(QWidget& window) override;
    void bringToFront(QWidget& window, const platform::ActivationToken& token) override;
    bool hasTranslucency() override { return translucency; }
    bool hasMaterials() override { return materials; }
    void setMaterial(const QWidget& part, const platform::WindowMaterial& wanted) override;
    void becomeAccessory() override { record.emplace_back("become accessory"); }
};

struct FakeSymbols final : platform::Symbols {
    QImage mask(const QString& name, const platform::SymbolStyle& style,
                double devicePixelRatio) override;
};

struct FakeUpdater final : platform::Updater {
    int starts = 0;
    int checks = 0;

    void startUpdater() override { ++starts; }
    void checkForUpdates() override { ++checks; }
};

struct FakeSystemInfo final : platform::SystemInfo {
    std::optional<QString> identifier = QStringLiteral("com.corvane.Quillet");

    std::optional<QString> version = QStringLiteral("1.0.2");
    std::optional<QString> build = QStringLiteral("7");
    platform::OperatingSystemVersion systemVersion{14, 5, 0};
    QString user = QStringLiteral("anna");

    std::optional<QString> bundleIdentifier() override { return identifier; }
    std::optional<QString> marketingVersion() override { return version; }
    std::optional<QString> buildNumber() override { return build; }
    platform::OperatingSystemVersion operatingSystemVersion() override { return systemVersion; }
    QString userName() override { return user; }
};

/// A whole platform of recording fakes, current for as long as it lives.
class FakePlatform {
public:
    FakePlatform();

    Record record;
    platform::Platform platform;
    FakeProgramInstance& programInstance;
    VirtualRunLoop& runLoop;
    FakeSystemInfo& systemInfo;
    FakeUserDefaults& userDefaults;
    FakeLoginItem& loginItem;
    FakeScreens& screens;
    FakeScreenCapture& screenCapture;
    FakeSymbols& symbols;
    FakeWindowServer& windowServer;
    FakeWorkspace& workspace;
    FakeApplicationBundles& applicationBundles;
    FakeApplicationIcons& applicationIcons;
    FakeAccessibility& accessibility;
    FakeKeyboardEvents& keyboardEvents;
    /// What the key of an event is, by its scan code. What is not among these is known by its name
    /// if it is Return, Escape or a vertical arrow.
    std::map<quint32, platform::KeyCode> keyPositions;
    FakeGlobalKeyMonitor& globalKeyMonitor;
    FakePointerMonitor& pointerMonitor;
    FakeColorPanel& colorPanel;
    FakeStatusItem& statusItem;
    FakeAlerts& alerts;
    FakeUpdater& updater;

private:
    platform::CurrentPlatform current_;
};

} // namespace fakes
