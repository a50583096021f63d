#include "support/SimulatedDisk.h"

#include <algorithm>
#include <cstdint>

namespace vexora::test {

namespace {

constexpr const char* NoSuchFile = "No such file or directory";
constexpr const char* Mark = ".vxr-";
constexpr std::size_t Fates = 4; // of a block that is not flushed

std::string FolderOf(const std::string& path) {
    return path.substr(0, path.rfind('/'));
}

} // namespace

class SimulatedDisk::File : public ui::OutputFile {
public:
    File(SimulatedDisk& disk, int file) : disk_(disk), file_(file) {}

    std::string Write(std::string_view bytes) override {
        std::string error;
        while (error.empty() && !bytes.empty()) {
            const std::string_view part = bytes.substr(0, disk_.Block);
            const bool isSilent = disk_.Fault.kind == DiskFault::Silent;
            const int call = disk_.calls_ + 1;
            error = disk_.Change([&] { disk_.Append(file_, part); },
                                 [&] { disk_.Append(file_, part.substr(0, part.size() / 2)); });
            // Room was made, and nothing stands there.
            if (isSilent && call == disk_.Fault.call)
                disk_.Append(file_, std::string(part.size(), '\0'));
            bytes.remove_prefix(part.size());
        }
        return error;
    }
    std::string Flush() override {
        return disk_.Change([this] {
            disk_.Journal.push_back({Event::FileFlush, file_, 0, {}, -1});
        });
    }
    /// A server may lose the last bytes here.
    std::string Close() override {
        std::string& text = disk_.Present.files[static_cast<std::size_t>(file_)];
        bool happened = false;
        const std::string error = disk_.Change([&] { happened = true; });
        if (!happened && !text.empty()) text.back() = '\0';
        return error;
    }

private:
    SimulatedDisk& disk_;
    int file_;
};

std::string SimulatedDisk::Change(const std::function<void()>& change,
                                  const std::function<void()>& half) {
    if (isDead_) return Fault.reason;
    ++calls_;
    const bool lasts = Fault.kind == DiskFault::Ever || Fault.kind == DiskFault::Full;
    const bool isEver = lasts && calls_ > Fault.call;
    if (Fault.kind == DiskFault::None || (calls_ != Fault.call && !isEver)) {
        change();
        return {};
    }
    switch (Fault.kind) {
    case DiskFault::KillBefore:
        isDead_ = true;
        throw Killed();
    case DiskFault::KillAfter:
        (half ? half : change)();
        isDead_ = true;
        throw Killed();
    case DiskFault::Short:
        if (half) half();
        break;
    case DiskFault::OnceAfterwards:
        change();
        break;
    case DiskFault::Silent:
        return {};
    default:
        break;
    }
    return Fault.reason;
}

void SimulatedDisk::Put(const std::string& path, const std::string& content) {
    Present.names[path] = {static_cast<int>(Present.files.size()), {}};
    Present.files.push_back(content);
}

void SimulatedDisk::SetName(const std::string& path, int file) {
    Journal.push_back({Event::Naming, -1, 0, path, file});
    if (file < 0)
        Present.names.erase(path);
    else
        Present.names[path] = {file, {}};
}

void SimulatedDisk::Append(int file, std::string_view bytes) {
    std::string& text = Present.files[static_cast<std::size_t>(file)];
    const std::string kept(bytes.substr(0, Room - std::min(Room, text.size())));
    Journal.push_back({Event::Data, file, text.size(), kept, -1});
    text += kept;
    asked_[file] += static_cast<long long>(bytes.size());
}

const SimulatedDisk::Name* SimulatedDisk::Find(const std::string& path) const {
    auto found = Present.names.find(path);
    if (found != Present.names.end() && found->second.file < 0)
        found = Present.names.find(found->second.link);
    return found == Present.names.end() ? nullptr : &found->second;
}

std::optional<std::string> SimulatedDisk::Text(const std::string& path) {
    const Name* name = Find(path);
    if (name == nullptr) return {};
    return Present.files[static_cast<std::size_t>(name->file)];
}

std::vector<std::string> SimulatedDisk::Temporaries() const {
    std::vector<std::string> found;
    for (const auto& [path, name] : Present.names)
        if (path.find(Mark) != path.npos) found.push_back(path);
    return found;
}

bool SimulatedDisk::Exists(const std::string& path) {
    return IsHere(path) ? IsFolder(path) || Find(path) != nullptr : disk_.Exists(path);
}

bool SimulatedDisk::IsFolder(const std::string& path) {
    if (!IsHere(path)) return disk_.IsFolder(path);
    return std::ranges::any_of(Present.names,
                               [&](const auto& one) { return one.first.starts_with(path + "/"); });
}

long long SimulatedDisk::Size(const std::string& path) {
    if (!IsHere(path)) return disk_.Size(path);
    const Name* name = Find(path);
    if (name == nullptr) return -1;
    const auto asked = asked_.find(name->file);
    if (SizeLies && asked != asked_.end()) return asked->second;
    return static_cast<long long>(Text(path)->size());
}

std::string SimulatedDisk::Resolve(const std::string& path) {
    if (!IsHere(path)) return disk_.Resolve(path);
    const auto found = Present.names.find(path);
    return found != Present.names.end() && found->second.file < 0 ? found->second.link : path;
}

std::string SimulatedDisk::WhyNotWritable(const std::string& path) {
    if (!IsHere(path)) return disk_.WhyNotWritable(path);
    return TellsReadOnly && ReadOnly.contains(path) ? "Permission denied" : "";
}

std::optional<std::string> SimulatedDisk::Read(const std::string& path, std::string& error) {
    if (!IsHere(path)) return disk_.Read(path, error);
    auto text = Text(path);
    if (!text) error = NoSuchFile;
    return text;
}

std::unique_ptr<ui::OutputFile> SimulatedDisk::CreateBeside(const std::string& target,
                                                            std::string& temporaryPath,
                                                            std::string& error) {
    if (!IsHere(target)) return disk_.CreateBeside(target, temporaryPath, error);
    std::string number = std::to_string(++made_);
    const std::string path = target + Mark + std::string(6 - number.size(), '0') + number;
    const int file = static_cast<int>(Present.files.size());
    bool happened = false;
    const std::string failed = Change([&] {
        Present.files.emplace_back();
        SetName(path, file);
        happened = true;
    });
    error = failed;
    if (!failed.empty() || !happened) {
        // What answers that it failed leaves no name behind.
        if (happened) SetName(path, -1);
        return nullptr;
    }
    temporaryPath = path;
    return std::make_unique<File>(*this, file);
}

std::vector<std::string> SimulatedDisk::Leftovers(const std::string& target) {
    if (!IsHere(target)) return disk_.Leftovers(target);
    std::vector<std::string> found;
    for (const std::string& path : Temporaries())
        if (path.starts_with(target + Mark)) found.push_back(path);
    return found;
}

std::string SimulatedDisk::Remove(const std::string& path) {
    if (!IsHere(path)) return disk_.Remove(path);
    if (Fault.kind == DiskFault::Full) {
        SetName(path, -1);
        return {};
    }
    return Change([&] { SetName(path, -1); });
}

std::string SimulatedDisk::Rename(const std::string& source, const std::string& target) {
    if (!IsHere(target)) return disk_.Rename(source, target);
    const Name* name = Find(source);
    if (name == nullptr) return NoSuchFile;
    const int file = name->file;
    return Change([&] {
        SetName(target, file);
        SetName(source, -1);
    });
}

std::string SimulatedDisk::Link(const std::string& source, const std::string& name) {
    const Name* file = Find(source);
    if (file == nullptr) return NoSuchFile;
    if (!HasLinks) return "Operation not permitted";
    const int number = file->file;
    return Change([&] { SetName(name, number); });
}

/// In the steps of the real disk.
std::string SimulatedDisk::Copy(const std::string& source, const std::string& target) {
    if (!IsHere(target)) return disk_.Copy(source, target);
    std::string error;
    std::string temporary;
    const auto text = Text(source);
    if (!text) return NoSuchFile;
    const auto file = CreateBeside(target, temporary, error);
    if (!file) return error;
    error = file->Write(*text);
    if (error.empty()) error = file->Flush();
    if (const std::string closing = file->Close(); error.empty()) error = closing;
    if (error.empty()) error = Rename(temporary, target);
    if (!error.empty()) Remove(temporary);
    return error;
}

std::string SimulatedDisk::FlushFolder(const std::string& folder) {
    if (!IsHere(folder)) return disk_.FlushFolder(folder);
    return Change([&] { Journal.push_back({Event::FolderFlush, -1, 0, folder, -1}); });
}

PowerCut::PowerCut(const SimulatedDisk::Content& before,
                   const std::vector<SimulatedDisk::Event>& events)
    : before_(before), events_(events) {}

void PowerCut::Take(const SimulatedDisk::Event& event) {
    using Event = SimulatedDisk::Event;
    const auto needed = static_cast<std::size_t>(std::max(event.file, event.named) + 1);
    if (bytes_.size() < needed) bytes_.resize(needed);
    switch (event.kind) {
    case Event::Data:
        bytes_[static_cast<std::size_t>(event.file)].pending.push_back(&event);
        break;
    case Event::FileFlush: {
        Bytes& bytes = bytes_[static_cast<std::size_t>(event.file)];
        for (const Event* one : bytes.pending)
            bytes.flushed += one->text;
        bytes.pending.clear();
        break;
    }
    case Event::Naming: {
        auto& files = names_.try_emplace(event.text, 1, -1).first->second;
        if (std::ranges::find(files, event.named) == files.end()) files.push_back(event.named);
        // The last one stands at the end: it alone stays when the folder is flushed.
        std::swap(*std::ranges::find(files, event.named), files.back());
        break;
    }
    case Event::FolderFlush:
        for (auto& [path, files] : names_)
            if (FolderOf(path) == event.text) files = {files.back()};
        break;
    }
}

std::string PowerCut::Drawn(const Bytes& bytes, const std::function<unsigned()>& nextFate) {
    std::string text = bytes.flushed;
    for (const SimulatedDisk::Event* one : bytes.pending) {
        enum { written, lost, zeros, torn };
        const unsigned fate = nextFate();
        if (fate == lost) continue;
        if (text.size() < one->offset) text.resize(one->offset, '\0');
        const std::size_t size = fate == torn ? one->text.size() / 2 : one->text.size();
        text.replace(one->offset, one->text.size(),
                     fate == zeros ? std::string(size, '\0') : one->text.substr(0, size));
    }
    return text;
}

void PowerCut::ForEach(std::size_t count, std::size_t mostContents,
                       const std::function<void(const Files&)>& show) {
    names_.clear();
    bytes_.clear();
    for (const std::string& text : before_.files)
        bytes_.push_back({text, {}});
    for (const auto& [path, name] : before_.names)
        if (name.file >= 0) names_[path] = {name.file};
    for (std::size_t i = 0; i < count; ++i)
        Take(events_[i]);
    std::size_t sets = 1;
    for (const auto& [path, files] : names_)
        sets *= files.size();
    for (std::size_t set = 0; set < sets; ++set) {
        std::size_t rest = set;
        std::size_t pending = 0;
        std::map<std::string, int> named;
        for (const auto& [path, files] : names_) {
            const int file = files[rest % files.size()];
            rest /= files.size();
            if (file < 0) continue;
            named[path] = file;
            pending += bytes_[static_cast<std::size_t>(file)].pending.size();
        }
        std::size_t contents = 1;
        for (std::size_t i = 0; i < pending && contents < mostContents; ++i)
            contents *= Fates;
        for (std::size_t choice = 0; choice < std::min(contents, mostContents); ++choice) {
            std::uint64_t draw = choice;
            const auto nextFate = [&] {
                const auto fate = static_cast<unsigned>(draw % Fates);
                // All choices one after the other when they are few, else drawn ones.
                draw =
                    contents > mostContents ? (draw + 1) * 0xD1342543DE82EF95 >> 3 : draw / Fates;
                return fate;
            };
            Files files;
            for (const auto& [path, file] : named)
                files[path] = Drawn(bytes_[static_cast<std::size_t>(file)], nextFate);
            show(files);
        }
    }
}

} // namespace vexora::test
