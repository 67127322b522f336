// Asking for the clipboard's text and offering our own.
#include "console/clipboard.h"

#include <gtk/gtk.h>

#include <memory>
#include <string>

#include "console/toolkit_lock.h"
#include "foundation/sync.h"

namespace {

constexpr uint32_t kPatienceMs = 5000;  // with the owner of the clipboard

struct TextRequest {
  Event answered;
  std::string text;
};

// Shared, for the asker may give up before the answer comes.
using RequestHandle = std::shared_ptr<TextRequest>;

void OnText(GtkClipboard*, const gchar* text, gpointer data) {
  const std::unique_ptr<RequestHandle> handle(static_cast<RequestHandle*>(data));
  TextRequest& request = **handle;
  if (text != nullptr) request.text = text;
  request.answered.Set();
}

GtkClipboard* Clipboard() { return gtk_clipboard_get(GDK_SELECTION_CLIPBOARD); }

}  // namespace

// The toolkit's own waiting turns a second loop in this thread and can miss
// its end while the GUI thread runs the first.
Westring ReadClipboard() {
  const RequestHandle request = std::make_shared<TextRequest>();
  {
    ToolkitCall call;
    gtk_clipboard_request_text(Clipboard(), OnText, new RequestHandle(request));
  }
  Westring text;
  if (request->answered.Wait(kPatienceMs) == 0) text.FromUtf8(request->text.c_str());
  return text;
}

void WriteClipboard(const Westring& text) {
  const Estring utf8 = ValidUtf8(text);
  gtk_clipboard_set_text(Clipboard(), utf8.Text(), -1);
  // A clipboard manager, where one runs, takes the text over when we end.
  gtk_clipboard_set_can_store(Clipboard(), nullptr, 0);
}

Estring ValidUtf8(const Westring& text) {
  Westring valid = text;
  for (wchar_t* p = valid.Text(); *p != 0; ++p) {
    if (!g_unichar_validate(static_cast<gunichar>(*p))) *p = 0xFFFD;
  }
  return ToUtf8(valid);
}
