#include <QApplication>
#include <QTimer>

#include <gtest/gtest.h>

// Windows without a screen, unless the caller says otherwise.
int main(int count, char** arguments) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&count, arguments);
    QApplication application(count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    QLocale::setDefault(QLocale::c());
    std::setlocale(LC_NUMERIC, "C");
    int status = 0;
    QTimer::singleShot(0, &application, [&] {
        status = RUN_ALL_TESTS();
        QCoreApplication::exit(status);
    });
    return QCoreApplication::exec();
}
