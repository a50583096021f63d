#pragma once

#include <memory>
#include <string>
#include <vector>

namespace vexora::ui {

class Form;

/// Several controls of one kind under one name: txtCoeff(0), txtCoeff(1), ... An index outside the
/// array is a fault of the program.
template <class T>
class ControlArray {
public:
    template <class... Arguments>
    ControlArray(Form& form, const std::string& name, int count, const Arguments&... arguments) {
        for (int i = 0; i < count; ++i) {
            const std::string member = name + "(" + std::to_string(i) + ")";
            controls_.push_back(std::make_unique<T>(form, member, arguments...));
        }
    }

    T& operator()(int index) const { return *controls_.at(static_cast<std::size_t>(index)); }
    int Count() const { return static_cast<int>(controls_.size()); }
    auto begin() const { return controls_.begin(); }
    auto end() const { return controls_.end(); }

private:
    std::vector<std::unique_ptr<T>> controls_;
};

} // namespace vexora::ui
