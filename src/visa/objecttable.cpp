#include "visa/objecttable.h"

namespace selvane::visa {

ObjectTable& builtinObjects()
{
    static ObjectTable table;
    return table;
}

ViObject ObjectTable::addManager()
{
    return table_.add(VI_NULL, Entry{});
}

ViObject ObjectTable::addSession(ViObject manager, std::shared_ptr<Session> session)
{
    Entry entry;
    entry.kind = Kind::Session;
    entry.session = std::move(session);
    return table_.add(manager, std::move(entry));
}

ViObject ObjectTable::addFindList(ViObject manager, std::vector<std::string> names)
{
    Entry entry;
    entry.kind = Kind::FindList;
    entry.names = std::move(names);
    return table_.add(manager, std::move(entry));
}

bool ObjectTable::isManager(ViObject object)
{
    bool manager = false;
    table_.visit(object, [&](const Entry& entry) { manager = entry.kind == Kind::Manager; });
    return manager;
}

bool ObjectTable::exists(ViObject object)
{
    return table_.visit(object, [](const Entry&) {});
}

std::shared_ptr<Session> ObjectTable::session(ViObject object)
{
    std::shared_ptr<Session> session;
    table_.visit(object, [&](const Entry& entry) { session = entry.session; });
    return session;
}

ViStatus ObjectTable::nextFound(ViObject list, std::string& name)
{
    ViStatus status = VI_ERROR_INV_OBJECT;
    table_.visit(list, [&](Entry& entry) {
        if (entry.kind != Kind::FindList) return;
        status = entry.next < entry.names.size() ? VI_SUCCESS : VI_ERROR_RSRC_NFOUND;
        if (status == VI_SUCCESS) name = entry.names[entry.next++];
    });
    return status;
}

// The sessions close (and may talk to their devices) after the table's lock is let go.
bool ObjectTable::remove(ViObject object)
{
    return table_.remove(object).has_value();
}

} // namespace selvane::visa
