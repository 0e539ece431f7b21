/// Shows views of the program by name, on the screen or as pictures. `gallery --help` says how.
#include "fakes/FakePlatform.h"
#include "gallery/Gallery.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdio>

using gallery::Appearance;
using gallery::Entry;

namespace {

int warnings = 0;

void countWarnings(QtMsgType type, const QMessageLogContext&, const QString& message) {
    // Offscreen there is no window manager that a window could tell its wishes.
    if (message.startsWith(QStringLiteral("This plugin does not support"))) {
        return;
    }
    std::fprintf(stderr, "%s\n", qPrintable(message));
    warnings += type != QtDebugMsg && type != QtInfoMsg;
}

/// Writes NAME.png; in the dark NAME-dark.png, and with @2x at two pixels to a point.
bool write(const Entry& entry, const QString& text, Appearance appearance, const QDir& folder) {
    const auto rooms = gallery::makeRooms();
    const QImage image = gallery::picture(entry.putUp(*rooms, text));
    const double ratio = image.devicePixelRatio();
    const QString path = folder.filePath(
        entry.name + (appearance == Appearance::Dark ? QStringLiteral("-dark") : QString()) +
        (ratio == 1 ? QString() : QStringLiteral("@%1x").arg(ratio)) + QStringLiteral(".png"));
    if (!image.save(path)) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
        return false;
    }
    std::puts(qPrintable(path));
    return true;
}

int show(const Entry& entry, const QString& text) {
    const auto rooms = gallery::makeRooms();
    const gallery::Exhibit exhibit = entry.putUp(*rooms, text);
    // The fakes' clock follows the real one.
    constexpr std::chrono::milliseconds beat{20};
    QTimer clock;
    QObject::connect(&clock, &QTimer::timeout, &clock, [&] {
        rooms->runLoop.advance(std::chrono::duration<double>(beat).count());
        rooms->runLoop.finishBackgroundWork();
    });
    clock.start(beat);
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows views of the program."));
    const QCommandLineOption list(QStringLiteral("list"), QStringLiteral("Lists the names."));
    const QCommandLineOption dark(QStringLiteral("dark"), QStringLiteral("In the dark."));
    const QCommandLineOption scale(QStringLiteral("scale"), QStringLiteral("Pixels to a point."),
                                   QStringLiteral("number"), QStringLiteral("1"));
    const QCommandLineOption text(QStringLiteral("text"),
                                  QStringLiteral("What was typed into the search field."),
                                  QStringLiteral("text"));
    const QCommandLineOption to(QStringLiteral("to"),
                                QStringLiteral("Writes pictures instead, of all views unless some "
                                               "are named."),
                                QStringLiteral("folder"));
    parser.addOptions({list, dark, scale, text, to});
    parser.addPositionalArgument(QStringLiteral("name"), QStringLiteral("Which views."),
                                 QStringLiteral("[name...]"));

    QStringList arguments;
    std::transform(argv, argv + argc, std::back_inserter(arguments),
                   [](const char* argument) { return QString::fromLocal8Bit(argument); });
    const bool understood = parser.parse(arguments);
    const QStringList names = parser.positionalArguments();
    std::vector<Entry> chosen = gallery::entries();
    if (parser.isSet(list)) {
        std::ranges::for_each(chosen, [](const Entry& e) { std::puts(qPrintable(e.name)); });
        return 0;
    }
    if (!names.isEmpty()) {
        std::erase_if(chosen, [&](const Entry& entry) { return !names.contains(entry.name); });
    }
    const bool pictures = parser.isSet(to);
    const bool known = names.isEmpty() || std::ssize(chosen) == names.size();
    if (!understood || !known || (!pictures && chosen.size() != 1)) {
        std::fprintf(stderr, "%s\n%s", qPrintable(parser.errorText()),
                     qPrintable(parser.helpText()));
        std::fputs("\nWithout --to, name one view of those that --list lists.\n", stderr);
        return 2;
    }

    // Both are read when the application object is made.
    qputenv("QT_SCALE_FACTOR", parser.value(scale).toLocal8Bit());
    if (pictures) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    qInstallMessageHandler(countWarnings);
    const Appearance appearance = parser.isSet(dark) ? Appearance::Dark : Appearance::Light;
    gallery::setAppearance(appearance);
    if (!pictures) {
        return show(chosen.front(), parser.value(text));
    }
    const QDir folder(parser.value(to));
    const bool written =
        QDir().mkpath(folder.path()) && std::ranges::all_of(chosen, [&](const Entry& entry) {
            return write(entry, parser.value(text), appearance, folder);
        });
    return written && warnings == 0 ? 0 : 1;
}
