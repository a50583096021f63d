#include "qt/Application.h"

#include <clocale>
#include <exception>

#include <QLocale>

namespace vexora::qt {

Application::Application(int& count, char** arguments) : QApplication(count, arguments) {
    setApplicationName(QStringLiteral("Vexora"));
    setApplicationVersion(QStringLiteral(VEXORA_VERSION));
    // The toolkit takes the locale of the user when it starts.
    std::setlocale(LC_NUMERIC, "C");
    QLocale::setDefault(QLocale::c());
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        if (!OnFault) throw;
        OnFault(std::current_exception());
        return false;
    }
}

QString FaultText(const std::exception_ptr& fault) {
    try {
        std::rethrow_exception(fault);
    } catch (const std::exception& error) {
        return QString::fromUtf8(error.what());
    } catch (...) {
        return QStringLiteral("unknown");
    }
}

} // namespace vexora::qt
