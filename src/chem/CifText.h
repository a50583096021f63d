#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace vexora {

/// A value of a CIF: its text, and whether it stood without quotes, where "?" and "." mean that
/// there is none.
struct CifValue {
    std::string text;
    bool isBare = true;
    int line = 0; // from 1
    bool IsMissing() const { return isBare && (text == "?" || text == "."); }
};

/// What a name of a CIF stands for: one value, or a column of a loop.
struct CifItem {
    int line = 0; // of the name, from 1
    std::vector<CifValue> values;
    std::size_t loop = 0; // number of the loop that it is a column of, from 1; 0 for none
};

/// A data block. Names are in lower case and have no point, as the newer dictionaries write them:
/// "_cell.length_a" stands under "_cell_length_a".
struct CifBlock {
    std::string name;
    std::map<std::string, CifItem> items;
};

/// The blocks of a text, or what is wrong with it.
struct CifBlocks {
    std::vector<CifBlock> blocks;
    std::string fault; // "Line 7: ...", empty for a sound text
};

/// Takes a CIF apart: comments, quoted texts, texts between semicolons, loops. It knows no meaning
/// of any name. A text that breaks the rules of the format is refused as a whole; so is one that is
/// no text or larger than any CIF of a structure.
CifBlocks ReadCifBlocks(std::string_view text);

} // namespace vexora
