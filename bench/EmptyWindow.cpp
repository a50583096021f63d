// What the start of the workbench is held against: a window of the toolkit with nothing in it.
#include <QApplication>
#include <QMainWindow>

int main(int count, char** arguments) {
    QApplication application(count, arguments);
    QMainWindow window;
    window.resize(1000, 700);
    window.show();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents(); // paints it
    return 0;
}
