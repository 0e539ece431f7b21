#pragma once

#include <QString>
#include <QWidget>

#include <memory>
#include <vector>

namespace fakes {
class FakePlatform;
}

namespace gallery {

enum class Appearance { Light, Dark };

/// A view of the program as it is shown: its windows at the place where they belong, the ones
/// behind first, and whatever keeps them going.
struct Exhibit {
    enum class Ground {
        /// The windows stand alone and fill the picture.
        None,
        /// They float above another application's page of text.
        Page,
    };

    std::shared_ptr<void> keeper;
    std::vector<QWidget*> windows;
    Ground ground = Ground::None;
};

/// The rooms in which exhibits are put up: a platform of fakes whose screen begins at the top-left
/// corner of the real one, with the program's own symbols.
std::unique_ptr<fakes::FakePlatform> makeRooms();

/// Gives every view of the process that appearance.
void setAppearance(Appearance appearance);

/// What the screen shows of an exhibit once it has come to rest, at the scale of the process.
QImage picture(const Exhibit& exhibit);

} // namespace gallery
