#pragma once

/// Everything of CanvasEngine: from an answer to the art that draws it.
#include "canvas/AnswerBlock.h"
#include "canvas/ArtChoice.h"
#include "canvas/RestoredCanvas.h"
#include "canvas/SpecReader.h"
#include "canvas/TextCues.h"
