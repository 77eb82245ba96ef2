#pragma once

/// Whether the print system that Unix desktops share (CUPS) refused what this thread asked of it last. Qt
/// hands a document over when its painter ends and keeps to itself what became of it: a queue that takes no
/// jobs or was deleted, a server that stopped or has no room. False where there is no such print system.
[[nodiscard]] bool printQueueRefused();
