#pragma once

#include <cstddef>
#include <functional>
#include <typeindex>
#include <typeinfo>
#include <unordered_map>
#include <utility>

#include "records/Record.h"

namespace vexora {

/// Goes through a record and all records below it, each before those below it, in the order of the
/// record file. Writer, check, export, labels and reading all walk this way, so that a new class of
/// records is reached by each of them as soon as its owner names it (Record::EachChild).
void Walk(Record& root, const std::function<void(Record&)>& visit);
/// The same for the whole document.
void WalkDocument(const std::function<void(Record&)>& visit);
/// The number of all records of the document.
std::size_t CountRecords();

/// Hears which share of a long work is done, from 0 to 1. False: it is to stop where it is.
using WorkHeard = std::function<bool(double share)>;
/// Comes up through a work that was stopped on the way.
struct WorkStopped {};
/// The same with each record told; throws WorkStopped.
void WalkDocument(const std::function<void(Record&)>& visit, const WorkHeard& heard);

/// What is to be done with a record, by its class. A class that is not named gets Result().
template <class Result, class... Args>
class ByClass {
public:
    /// The action takes a const T& or one of its bases, and what else the call passes on.
    template <class T, class Action>
    ByClass&& On(Action action) && {
        actions_.insert_or_assign(std::type_index(typeid(T)),
                                  [action](const Record& record, Args... args) {
                                      return action(static_cast<const T&>(record), args...);
                                  });
        return std::move(*this);
    }
    /// Classes are matched exactly, never by their base: a new one has to be named.
    Result operator()(const Record& record, Args... args) const {
        const auto found = actions_.find(std::type_index(typeid(record)));
        return found == actions_.end() ? Result() : found->second(record, args...);
    }
    bool Knows(const Record& record) const {
        return actions_.contains(std::type_index(typeid(record)));
    }

private:
    std::unordered_map<std::type_index, std::function<Result(const Record&, Args...)>> actions_;
};

} // namespace vexora
