// How an editor saves its draft: what stands in the way is told or asked about, and what an answer
// mends is saved. The fields are in the draft by then.
#pragma once

class QWidget;

namespace kladez {

class DocumentDraft;

// Saves the draft; messages stand over `asker`. False: nothing was written, and the draft may be
// saved again.
bool SaveDraft(DocumentDraft& draft, QWidget* asker);

// Asks, then deletes the document with reversal and enters it anew. False as above.
bool EnterDraftAnew(DocumentDraft& draft, QWidget* asker);

}  // namespace kladez
