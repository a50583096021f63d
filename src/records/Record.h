#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

#include "ui/Collection.h"
#include "ui/TreeView.h"

namespace vexora {

class LineWriter;

/// What every record class of the document has: an identity among its siblings, a label in the
/// tree, and the step that makes it the current one. A parent's collection owns its records; the
/// tree node refers back to the record by its tag.
class Record : public ui::TreeTag, public std::enable_shared_from_this<Record> {
public:
    /// The node in the tree, null for a record that shows none or is not attached. The tree owns
    /// it.
    ui::TreeNode* tNode = nullptr;
    /// Line of the file that the record was read from, 0 for one made since.
    int Line = 0;

    /// Short identity text, unique among siblings.
    /// A collection holds the record under the key that it had on joining: who changes a part of
    /// the key has to rekey it there.
    virtual std::string Key() const = 0;
    /// The key of its node among those of its siblings.
    virtual std::string KeyInTree() const { return Key(); }
    /// The text of the node.
    virtual std::string ShowKey() const = 0;
    /// Its node is to catch the eye.
    virtual bool StandsOut() const { return false; }
    /// Makes this record and those above it the current ones; sets CurrentKey if it is still empty.
    /// The lowest record speaks first, so CurrentKey names the kind of what was selected.
    virtual void SetMe() = 0;
    /// Its own lines in the record file, without those of the records below it.
    virtual void Print(LineWriter&) const {}
    /// The records below it, in the order of the record file.
    /// What is not named here is neither saved nor checked nor exported.
    virtual void EachChild(const std::function<void(Record&)>&) const {}

    /// Takes it out of the collection of its parent, which it still knows; its place there, from 1,
    /// and 0 when it stood in none. The node stays.
    virtual std::size_t Leave() { return 0; }
    /// Puts it back at a place. False when a sibling bears its number by now; nothing happens then.
    virtual bool Return(std::size_t) { return false; }

    /// Brings the node's text and key back in line with the record.
    void Refresh();

    /// T has to be the class of the record, which is not tested.
    template <class T>
    std::shared_ptr<T> As() {
        return std::static_pointer_cast<T>(shared_from_this());
    }

protected:
    /// Makes the node below another (null for a root), labels it and makes it visible. Does nothing
    /// without a tree, as when a document is read without a main form.
    void MakeNode(ui::TreeNode* above);
    /// What Leave and Return do in the collection that a class stands in.
    template <class T>
    std::size_t LeaveFrom(ui::Collection<T>& siblings) {
        const std::size_t place = siblings.Position(static_cast<T*>(this));
        siblings.Remove(static_cast<T*>(this));
        return place;
    }
    template <class T>
    bool ReturnTo(ui::Collection<T>& siblings, std::size_t place, const std::shared_ptr<T>& rival) {
        if (!rival) siblings.Insert(As<T>(), Key(), place);
        return rival == nullptr;
    }
    /// Writes ShowKey, or another text, on the node.
    void Label(const std::string& text);

private:
    std::string NodeKey(const ui::TreeNode* above) const;
};

/// While one lives, new nodes stay without a label: a read labels all of them at its end, when all
/// that the labels tell is known.
class LabelsLater {
public:
    LabelsLater();
    ~LabelsLater();
    LabelsLater(const LabelsLater&) = delete;
    LabelsLater& operator=(const LabelsLater&) = delete;
};

} // namespace vexora
