// The desktop program: start-up checks, login, and the main window.
#include <QApplication>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    return 0;
}
