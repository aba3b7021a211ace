#pragma once
// The objects of our own layer by handle: resource managers, the sessions and
// find lists made from them. Closing a manager closes what it made.

#include "visa/handletable.h"
#include "visa/session.h"

#include <memory>
#include <string>
#include <vector>

namespace selvane::visa {

class ObjectTable {
  public:
    ViObject addManager();
    ViObject addSession(ViObject manager, std::shared_ptr<Session> session);
    ViObject addFindList(ViObject manager, std::vector<std::string> names);

    bool isManager(ViObject object);
    bool exists(ViObject object);
    std::shared_ptr<Session> session(ViObject object);
    // The list's next name; VI_ERROR_RSRC_NFOUND when it is used up.
    ViStatus nextFound(ViObject list, std::string& name);

    // False when there is no such object.
    bool remove(ViObject object);

  private:
    enum class Kind { Manager, Session, FindList };
    struct Entry {
        Kind kind = Kind::Manager;
        std::shared_ptr<Session> session;
        std::vector<std::string> names;
        size_t next = 0;
    };

    HandleTable<Entry> table_;
};

ObjectTable& builtinObjects();

} // namespace selvane::visa
