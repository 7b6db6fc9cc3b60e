#pragma once

#include "basket/order_lines.h"
#include "catalogue/maker.h"
#include "store/small_store.h"

namespace orvane {

// An empty Panier.mdb, and lines for it in few words.
class BasketTest : public StoreTest
{
  protected:
    BasketTest() { DatabaseMaker(File, PanierDefinition()).Finish(); }

    static Achat Of(const std::string& Name, const std::string& Quantity, const std::string& Price)
    {
        return {Name, Montant::FromText(Quantity).value(), Montant::FromText(Price).value()};
    }

    void Add(const std::string& Order, const std::string& Object, const Achats& Materials,
             const std::string& Realm = "Valdren")
    {
        AjouterLigne(TheStore.Open(File), {{}, Object, "2", "10", "12,5", Realm, Order}, Materials);
    }

    std::string Cells(const std::string& Sql) const { return RawCell("Panier.mdb", Sql); }

    const std::filesystem::path File = Folder / "Panier.mdb";
};

} // namespace orvane
