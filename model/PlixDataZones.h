#pragma once

#include "model/PlixDataContainer.h"

// The zones of a bubble: lists of items. The class tells which zone a list is.

class PlixDataHeader : public PlixDataContainer { };
class PlixDataHero : public PlixDataContainer { };
class PlixDataBody : public PlixDataContainer { };
class PlixDataFooter : public PlixDataContainer { };
