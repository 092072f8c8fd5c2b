#pragma once

#include "canvas/FigureReader.h"

#include <QString>
#include <QStringView>

#include <optional>

/// What stands around the digits of a figure: currency, thousands and millions, units and rates.
namespace kiv::canvas {

/// Takes a sign or a code of currency in front of the digits; empty without one.
QString takeCurrency(FigureReader &reader);

/// Takes a word for thousands, millions or billions; 1 without one. Of money a letter may stand
/// apart.
double takeMultiplier(FigureReader &reader, bool isMoney);

/// The rest of a figure as its unit; nothing when it is anything else.
std::optional<QString> unitOfRest(QStringView rest);

/// "/mo", "per month", "a month", "в месяц".
bool isRate(QStringView unit);

/// Whether a unit is money, which has no thousandths.
bool isMoney(const QString &unit);

/// The sign of a currency that is given by sign or code, "USD" and "$"; any other unit as it is.
QString currencySign(const QString &unit);

} // namespace kiv::canvas
