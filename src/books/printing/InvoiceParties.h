// Fills the seller's and the buyer's block of an invoice or bill from the directories of parties.
#pragma once

#include "books/printing/InvoicePage.h"
#include "formats/PartyFile.h"

namespace kladez {

// The first record of that name in the bytes of the kind's file; an empty one where there is none.
Party PartyNamed(PartyKind kind, QByteArrayView bytes, const QString& name);

// The texts of a firm's or a client's record. Who ships or receives is "он же", unless the record
// of a firm names another shipper.
InvoiceParty InvoicePartyOf(PartyKind kind, const Party& party);

}  // namespace kladez
