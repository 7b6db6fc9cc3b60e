#include "store/store.h"

#include "base/failure.h"

#include <utility>

namespace orvane {

Database::Database(Store& Owner, std::shared_ptr<Connection> Base)
    : Owner(&Owner),
      Base(std::move(Base))
{
}

Database::~Database()
{
    if (Base)
        Owner->Release(*Base);
}

Database::Database(Database&& Other) noexcept
    : Owner(Other.Owner),
      Base(std::exchange(Other.Base, nullptr))
{
}

Recordset Database::OpenRecordset(std::string_view Sql) const
{
    return {Base, Base->Select(Sql)};
}

void Database::Execute(std::string_view Sql) const
{
    Base->Delete(Sql);
}

void Database::Transaction(const std::function<void()>& Action) const
{
    Base->Transaction(Action);
}

bool Database::HasTable(const std::string& Name) const
{
    return Base->HasTable(Name);
}

std::string Database::LinkConnect(const std::string& Table) const
{
    return Base->LinkConnect(Table);
}

void Database::SetLinkConnect(const std::string& Table, const std::string& Connect) const
{
    Base->SetLinkConnect(Table, Connect);
}

void Database::UseLinkConnect(const std::string& Table, const std::string& Connect) const
{
    Base->UseLinkConnect(Table, Connect);
}

void Database::RefreshLink(const std::string& Table) const
{
    Base->RefreshLink(Table);
}

Database Store::Open(const std::filesystem::path& Path)
{
    const std::filesystem::path File = Path.lexically_normal();
    Entry& Known = Connections[File];
    if (Known.Handles == 0 && !(Known.Base && Known.Base->IsFresh()))
        Known.Base = nullptr;
    if (!Known.Base)
        Known.Base = std::make_shared<Connection>(
            File, [this] { EndAllReading(); }, Known.Links);
    ++Known.Handles;
    return {*this, Known.Base};
}

void Store::EndAllReading()
{
    for (const auto& [File, Known] : Connections)
        if (Known.Base)
            Known.Base->EndReading();
}

void Store::Release(const Connection& Base) noexcept
{
    const auto Found = Connections.find(Base.File());
    if (Found == Connections.end() || --Found->second.Handles > 0)
        return;
    try {
        Found->second.Base->Rest();
    } catch (const std::exception&) {
        Found->second.Base = nullptr; // a connection that can't rest isn't kept
    }
}

} // namespace orvane
