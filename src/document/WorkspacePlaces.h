// What a workspace knows of an open document; private to its source files.
#pragma once
#include "document/Draft.h"
#include "document/Workspace.h"
#include <algorithm>
#include <deque>

namespace velara {

/// An entry of a document's queue: a change or a call.
struct Workspace::Item {
    Step step;
    Then then;
    std::function<void()> call;
    int number = kAll; // of a change

    bool isMeant(int change) const { return !call && (change == kAll || change == number); }
    bool isChange() const { return !call && !isStep(step.after); }
};

/// A change under way.
struct Workspace::Run {
    DocumentHandle document;
    Item item;
    Draft draft;
    std::atomic<bool> cancelled{false};
    bool isOver = false;             // it has been told what became of it
    std::vector<Bits> replaced = {}; // pictures to be freed by another thread
};

/// An open document and what is to be done to it.
struct Workspace::Place {
    std::shared_ptr<Document> document;
    std::deque<Item> waiting;
    std::shared_ptr<Run> running;
    bool calling = false; // it is the turn of a call
    bool inCall = false;  // which is running
    int saves = 0;        // that are being written
    std::shared_ptr<std::atomic<bool>> unwanted = std::make_shared<std::atomic<bool>>(false); // those saves

    bool isBusy() const { return running || calling || !waiting.empty(); }
    bool hasChange() const
    {
        return (running && running->item.isChange()) || std::ranges::any_of(waiting, &Item::isChange);
    }
};

} // namespace velara
