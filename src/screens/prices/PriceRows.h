// The rows of a price list as its screens show them and pick from them.
#pragma once

#include <QString>

#include "books/prices/PriceList.h"

class QObject;

namespace kladez {

class RecordModel;

// The four columns, with a tick before each of the goods. `prices` outlives the model.
RecordModel* NewPriceModel(PriceList& prices, bool with_purchase_price, QObject* parent);

// Where a picker opens: on what was picked last, or else on goods, as a group can't be picked.
int FirstRowToPick(const PriceList& prices, const QString& last_pick);

// What a picker says below its list: how many lines were picked so far, and what "Выбрать" takes.
QString WhatIsTaken(const PriceList& prices, int current_row, int picks);

}  // namespace kladez
