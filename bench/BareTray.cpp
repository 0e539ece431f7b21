// What any Qt Widgets program costs that does nothing but stand in the tray with a menu.

#include <QApplication>
#include <QMenu>
#include <QPainter>
#include <QPixmap>
#include <QSystemTrayIcon>

int main(int argc, char** argv) {
    QApplication::setApplicationName(QStringLiteral("bare-tray"));
    QApplication::setQuitOnLastWindowClosed(false);
    const QApplication application(argc, argv);

    QPixmap picture(22, 22);
    picture.fill(Qt::transparent);
    QPainter(&picture).drawRect(4, 4, 13, 13);

    QMenu menu;
    for (const QString& title :
         {QStringLiteral("Check"), QStringLiteral("Settings"), QStringLiteral("Feedback")}) {
        menu.addAction(title);
        menu.addSeparator();
    }
    QObject::connect(menu.addAction(QStringLiteral("Quit")), &QAction::triggered,
                     QCoreApplication::instance(), &QCoreApplication::quit);

    QSystemTrayIcon icon{QIcon(picture)};
    icon.setContextMenu(&menu);
    icon.show();
    return QApplication::exec();
}
