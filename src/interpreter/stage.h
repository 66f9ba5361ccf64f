#pragma once

namespace tarnwell {

/// How reading one text goes on when a stage has done its work.
enum class Then { NextStage, Stop };

} // namespace tarnwell
