#pragma once

#include <functional>

#include <QApplication>

namespace vexora::qt {

/// The application: nothing that is thrown may end it, for the document has to stay open. The
/// numeric locale is "C" whatever the platform says.
class Application : public QApplication {
public:
    Application(int& count, char** arguments);
    bool notify(QObject* receiver, QEvent* event) override;

    /// Tells the user of a fault; a text box unless a front brings another way.
    std::function<void(const std::exception_ptr&)> OnFault;
};

/// What an exception says of itself.
QString FaultText(const std::exception_ptr& fault);

} // namespace vexora::qt
