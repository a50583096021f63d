#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "host/PosixFileSystem.h"

namespace vexora::test {

/// Thrown through a program that is killed at a call. No std::exception, so that nobody takes it
/// for a fault.
struct Killed {};

/// What happens at a call that changes something, counted from 1.
struct DiskFault {
    enum Kind {
        None,
        KillBefore,     // the program is killed, and the call has not happened
        KillAfter,      // killed, and it has; of a write the half
        Once,           // it answers with the reason
        Ever,           // and so does every later call
        Full,           // the same, but files can be removed
        OnceAfterwards, // it has happened all the same, as over a network
        Short,          // of a write the half, then the reason
        Silent          // it answers that all is well and has not happened
    };
    Kind kind = None;
    int call = 0;
    std::string reason = "Input/output error";
};

/// A disk in memory below the folder /disk that counts the calls that change it, fails at one of
/// them, and notes what a power cut could lose; every other path is that of the real disk. Bytes
/// are written by blocks, each a call of its own. Symbolic links stand in its names from the
/// beginning.
class SimulatedDisk : public ui::FileSystem {
public:
    static constexpr const char* Root = "/disk";
    struct Name {
        int file = -1;    // position among Files, -1 for a symbolic link
        std::string link; // full path of its target
        bool operator==(const Name&) const = default;
    };
    struct Content {
        std::map<std::string, Name> names;
        std::vector<std::string> files;
    };
    /// One change, as the disk may lose it.
    struct Event {
        enum Kind { Data, Naming, FileFlush, FolderFlush } kind;
        int file = -1;
        std::size_t offset = 0;
        std::string text; // bytes, full path of a name, or folder
        int named = -1;   // the file that the name stands for from now on, -1 for none
    };

    Content Present;
    std::vector<Event> Journal; // since Begin
    std::set<std::string> ReadOnly;
    DiskFault Fault;
    bool HasLinks = true;
    bool TellsReadOnly = true;
    bool SizeLies = false; // files are taken for as long as was written
    std::size_t Block = 4096;
    std::size_t Room = std::string::npos; // bytes of a file that are kept; writing tells nothing

    void Put(const std::string& path, const std::string& content);
    void PutLink(const std::string& path, const std::string& target) {
        Present.names[path] = {-1, target};
    }
    /// From here on calls are counted and noted, and the fault holds.
    void Begin(DiskFault fault) {
        Fault = std::move(fault);
        Journal.clear();
        calls_ = 0;
        isDead_ = false;
    }
    int Calls() const { return calls_; }
    std::optional<std::string> Text(const std::string& path);
    /// The names of temporary files.
    std::vector<std::string> Temporaries() const;

    bool Exists(const std::string& path) override;
    bool IsFolder(const std::string& path) override;
    long long Size(const std::string& path) override;
    std::string Resolve(const std::string& path) override;
    std::string WhyNotWritable(const std::string& path) override;
    std::optional<std::string> Read(const std::string& path, std::string& error) override;
    std::unique_ptr<ui::OutputFile> CreateBeside(const std::string& target,
                                                 std::string& temporaryPath,
                                                 std::string& error) override;
    std::vector<std::string> Leftovers(const std::string& target) override;
    std::string MakeFolder(const std::string& path) override { return disk_.MakeFolder(path); }
    std::string Remove(const std::string& path) override;
    std::string Rename(const std::string& source, const std::string& target) override;
    std::string Link(const std::string& source, const std::string& name) override;
    std::string Copy(const std::string& source, const std::string& target) override;
    std::string FlushFolder(const std::string& folder) override;

private:
    class File;
    static bool IsHere(const std::string& path) { return path.starts_with(Root); }
    const Name* Find(const std::string& path) const;
    /// Counts the call and does it as the fault has it.
    std::string Change(const std::function<void()>& change, const std::function<void()>& half = {});
    void SetName(const std::string& path, int file);
    void Append(int file, std::string_view bytes);

    host::PosixFileSystem disk_;
    int calls_ = 0;
    int made_ = 0;
    std::map<int, long long> asked_; // bytes that were to be written, by file
    bool isDead_ = false;
};

/// Everything that a power cut may leave of a disk: names and bytes that were not flushed are there
/// or not, each by itself and in any order; blocks come whole, half, or full of zeros.
class PowerCut {
public:
    using Files = std::map<std::string, std::string>; // full path, content
    /// before is the disk at the first event.
    PowerCut(const SimulatedDisk::Content& before, const std::vector<SimulatedDisk::Event>& events);
    /// Shows the states of a cut behind the first count events: all sets of names, and of the bytes
    /// at most this many of each set, all when there are no more.
    void ForEach(std::size_t count, std::size_t mostContents,
                 const std::function<void(const Files&)>& show);

private:
    struct Bytes {
        std::string flushed;
        std::vector<const SimulatedDisk::Event*> pending;
    };
    static std::string Drawn(const Bytes& bytes, const std::function<unsigned()>& nextFate);
    void Take(const SimulatedDisk::Event& event);

    const SimulatedDisk::Content& before_;
    const std::vector<SimulatedDisk::Event>& events_;
    std::map<std::string, std::vector<int>> names_; // every file that a name may stand for
    std::vector<Bytes> bytes_;
};

} // namespace vexora::test
