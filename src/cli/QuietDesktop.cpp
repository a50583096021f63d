#include "cli/QuietDesktop.h"

#include "host/HostClock.h"

namespace vexora {

ui::Answer QuietDesktop::Show(const ui::Message& message) {
    listener_(message);
    return message.buttons == ui::MessageButtons::Ok ? ui::Answer::Ok : message.safe;
}

ui::Date QuietDesktop::Today() {
    return host::ClockToday();
}

} // namespace vexora
