// SPDX-License-Identifier: Apache-2.0
#pragma once

// Class records and flag words, which every object of QuarnGeo has.
#include "base/QnBitData.h"
#include "base/QnRxClassInfo.h"
#include "base/QnRxRunTimeClass.h"

// Streams: objects write themselves to them and read themselves back.
#include "base/QnDynArrayStream.h"
#include "base/QnStream.h"

// Elements for graphs of a caller's own.
#include "base/QnGraphArc.h"
#include "base/QnGraphNode.h"
