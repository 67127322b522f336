// What the GUI thread does with keys and mouse: decide, queue, select text.
// No handler waits for the application.
#include "console/clipboard.h"
#include "console/console_window.h"
#include "console/input.h"
#include "console/key_press.h"

namespace {

constexpr Key kCloseKey = FKey(10);  // closing the window asks what F10 asks

int ButtonCode(guint button) {
  if (button == 1) return 1;
  return button == 3 ? 2 : 3;
}

int HeldButton(guint state) {
  if ((state & GDK_BUTTON1_MASK) != 0) return 1;
  return (state & GDK_BUTTON3_MASK) != 0 ? 2 : 0;
}

}  // namespace

// ---- keys --------------------------------------------------------------------

bool CConsoleWindow::on_key_press_event(GdkEventKey* event) {
  HandleKey(event);
  return true;
}

bool CConsoleWindow::on_key_release_event(GdkEventKey* event) {
  HandleKey(event);
  return true;
}

void CConsoleWindow::HandleKey(GdkEventKey* event) {
  if (inputMethod == nullptr) MakeInputMethod();
  const KeyDecision decision =
      DecideKey({event->keyval, event->state, event->hardware_keycode, event->type == GDK_KEY_RELEASE});
  switch (decision.route) {
    case KeyRoute::Drop: break;
    case KeyRoute::Break: RequestBreak(); break;
    case KeyRoute::InputMethod: OfferToInputMethod(event); break;
    case KeyRoute::Queue: QueueKey(decision.code, decision.modifiers, event->hardware_keycode); break;
  }
}

void CConsoleWindow::QueueKey(Key code, uint32_t modifiers, uint32_t hardware) {
  blink.Restart();
  if (terminal != nullptr) {
    terminal->SendKey(code);
    return;
  }
  events.Put(new TEvent{kEventKey, static_cast<int32_t>(code), static_cast<int32_t>(modifiers),
                        static_cast<int32_t>(hardware), 0, 0});
}

// Not for a child, which would take it for a key of its own: we are asked when it
// has ended. The program ends itself, if it wants to.
bool CConsoleWindow::on_delete_event(GdkEventAny*) {
  events.Put(new TEvent{kEventKey, static_cast<int32_t>(kCloseKey), 0, 0, 0, 0});
  return true;
}

// ---- text --------------------------------------------------------------------

void CConsoleWindow::MakeInputMethod() {
  inputMethod.reset(gtk_im_multicontext_new());
  gtk_im_context_set_client_window(inputMethod.get(), gtk_widget_get_window(GTK_WIDGET(area.gobj())));
  gtk_im_context_set_use_preedit(inputMethod.get(), FALSE);  // text in the making is not ours to show
  g_signal_connect(inputMethod.get(), "commit", G_CALLBACK(OnCommit), this);
  if (gtk_window_has_toplevel_focus(gobj())) gtk_im_context_focus_in(inputMethod.get());
}

void CConsoleWindow::OfferToInputMethod(GdkEventKey* event) {
  const Place at = cursor;
  GdkRectangle cell{at.x * painter.CellWidth(), at.y * painter.CellHeight(), painter.CellWidth(),
                    painter.CellHeight()};
  gtk_im_context_set_cursor_location(inputMethod.get(), &cell);
  gtk_im_context_filter_keypress(inputMethod.get(), event);
}

void CConsoleWindow::OnCommit(GtkIMContext*, const gchar* utf8, gpointer window) {
  CConsoleWindow& console = *static_cast<CConsoleWindow*>(window);
  Westring text;
  text.FromUtf8(utf8);
  for (const wchar_t* p = text.Text(); *p != 0; ++p) {
    // A child takes bytes; the numbers of some characters above those are keys.
    if (console.terminal == nullptr || *p <= 0xFF) console.QueueKey(static_cast<Key>(*p), 0, 0);
  }
}

bool CConsoleWindow::on_focus_in_event(GdkEventFocus* event) {
  if (inputMethod != nullptr) gtk_im_context_focus_in(inputMethod.get());
  return Gtk::Window::on_focus_in_event(event);
}

bool CConsoleWindow::on_focus_out_event(GdkEventFocus* event) {
  if (inputMethod != nullptr) gtk_im_context_focus_out(inputMethod.get());
  return Gtk::Window::on_focus_out_event(event);
}

// ---- mouse -------------------------------------------------------------------

void CConsoleWindow::QueueMouse(EventType type, int code, uint32_t modifiers, double x, double y) {
  events.Put(new TEvent{type, code, static_cast<int32_t>(modifiers & kModMask), 0, CellX(x), CellY(y)});
}

bool CConsoleWindow::on_button_press_event(GdkEventButton* event) {
  const bool isDouble = event->type == GDK_2BUTTON_PRESS;
  if (!isDouble) {
    const CellRect selected = selection.Selected();
    const bool isTaken = selection.Press(CellX(event->x), CellY(event->y));
    Repaint(selected);
    if (isTaken) return true;
  }
  if (terminal == nullptr) {
    QueueMouse(isDouble ? kEventDoubleClick : kEventPress, ButtonCode(event->button), event->state, event->x,
               event->y);
  }
  return true;
}

bool CConsoleWindow::on_motion_notify_event(GdkEventMotion* event) {
  const CellRect before = selection.Selected();
  if (selection.Drag(CellX(event->x), CellY(event->y))) {
    const CellRect after = selection.Selected();
    if (!(after == before)) Repaint(Union(before, after));
  } else if (terminal == nullptr) {
    QueueMouse(kEventMotion, HeldButton(event->state), event->state, event->x, event->y);
  }
  return true;
}

bool CConsoleWindow::on_button_release_event(GdkEventButton* event) {
  const CellRect selected = selection.Selected();
  if (!selected.IsEmpty()) WriteClipboard(TextOfCells(grid, selected));
  selection.Clear();
  Repaint(selected);
  if (terminal == nullptr) {
    QueueMouse(kEventRelease, ButtonCode(event->button), event->state, event->x, event->y);
  }
  return true;
}

bool CConsoleWindow::on_scroll_event(GdkEventScroll* event) {
  if (event->direction == GDK_SCROLL_UP) QueueMouse(kEventWheel, 1, event->state, event->x, event->y);
  if (event->direction == GDK_SCROLL_DOWN) QueueMouse(kEventWheel, -1, event->state, event->x, event->y);
  return true;
}
