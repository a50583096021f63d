#pragma once

#include <sstream>
#include <string>

#include "ui/Grid.h"

namespace vexora::test {

/// Lets a grid take a pasted text from its selection on: a line a row, cells parted by tabs.
inline void PasteByTabs(ui::Grid& grid) {
    grid.OnPaste = [&grid](const std::string& text) {
        const ui::Grid::Block from = grid.Selection();
        std::istringstream lines(text);
        int row = from.top;
        for (std::string line; std::getline(lines, line); ++row) {
            std::istringstream cells(line);
            int column = from.left;
            for (std::string cell; std::getline(cells, cell, '\t');)
                grid.UserCell(row, column++, cell);
        }
    };
}

} // namespace vexora::test
