#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace vexora {

/// A text that is no well-formed XML.
class XmlError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Who is told of the elements of a document, in their order.
class XmlHandler {
public:
    virtual ~XmlHandler() = default;
    /// An element begins in this line, counted from 1. The name holds as long as the part of the
    /// document that it stands in.
    virtual void Open(std::string_view name, int line) = 0;
    /// Character data of the element opened last; it may come in parts.
    virtual void Text(std::string_view text) = 0;
    /// The element opened last ends.
    virtual void Close() = 0;
    /// A whole element with nothing but a text in it, which nearly all are.
    virtual void Leaf(std::string_view name, int line, std::string_view text) {
        Open(name, line);
        Text(text);
        Close();
    }
};

/// Reads a document of elements, attributes, character data, comments, CDATA and instructions. A
/// document type is refused: nothing written here has one. Name spaces are left aside. A long one
/// may come in parts, so that it is read while it is written.
class XmlReader {
public:
    explicit XmlReader(XmlHandler& handler) : handler_(handler) {}

    /// Reads on. A part ends between two of the things that a document consists of, not within a
    /// tag or a text. Throws XmlError, with the line; the handler has been told of what stands in
    /// front of it, and nothing is read behind it.
    void Read(std::string_view part);
    /// The document ends here. Throws XmlError where it cannot.
    void Finish();

private:
    [[noreturn]] void Fail(const std::string& what);
    bool AtEnd() const { return at_ >= text_.size(); }
    bool Take(std::string_view what);
    bool TakeSign(char sign);
    bool SkipBlanks();
    std::string_view Until(std::string_view end);
    bool SkipAside();
    std::string_view Name();
    std::string Reference();
    std::string CharacterReference(const std::string& name);
    void ReadOutside();
    void ReadAttributes();
    void ReadOpening();
    void ReadClosing();
    bool ReadLeaf(std::string_view name, int line);
    void ReadContent();
    void ReadCharacters();
    std::string_view NameInHand() const;

    XmlHandler& handler_;
    std::string_view text_; // the part in hand
    std::size_t at_ = 0;
    int line_ = 1;
    bool isAtStart_ = true; // nothing stands in front
    bool hasRoot_ = false;
    std::string names_;              // of the open elements, one behind the other
    std::vector<std::size_t> begin_; // where each of them begins
};

/// A whole document. Throws XmlError; the handler may have been told of a part by then.
void ReadXml(std::string_view document, XmlHandler& handler);

} // namespace vexora
