// Asking the desktop's services for the mount and for its end.
#include "console/mount_eject.h"

#include <gio/gio.h>

#include <atomic>
#include <memory>

#include "foundation/sync.h"

namespace {

struct EjectRequest {
  Event answered;
  bool ejected = false;
  Westring error;
  std::atomic<bool> abandoned = false;
};

// Shared, for the asker may give up before the answer comes.
using RequestHandle = std::shared_ptr<EjectRequest>;

void Answer(EjectRequest& request, bool ejected, GError* error) {
  request.ejected = ejected;
  if (error != nullptr) request.error.FromUtf8(error->message);
  g_clear_error(&error);
  request.answered.Set();
}

// The two steps run in the loop of the GUI thread.

void OnEjected(GObject* mount, GAsyncResult* result, gpointer data) {
  const std::unique_ptr<RequestHandle> handle(static_cast<RequestHandle*>(data));
  GError* error = nullptr;
  const bool ejected = g_mount_eject_with_operation_finish(G_MOUNT(mount), result, &error) != FALSE;
  Answer(**handle, ejected, error);
}

void OnMountFound(GObject* file, GAsyncResult* result, gpointer data) {
  std::unique_ptr<RequestHandle> handle(static_cast<RequestHandle*>(data));
  GError* error = nullptr;
  GMount* mount = g_file_find_enclosing_mount_finish(G_FILE(file), result, &error);
  if (mount == nullptr) return Answer(**handle, false, error);
  // Nothing must be started after the user was told that it failed.
  if (!(*handle)->abandoned) {
    g_mount_eject_with_operation(mount, G_MOUNT_UNMOUNT_NONE, nullptr, nullptr, OnEjected, handle.release());
  }
  g_object_unref(mount);
}

}  // namespace

EjectResult EjectMount(const Westring& mountPoint, uint32_t patienceMs, Westring& error) {
  const RequestHandle request = std::make_shared<EjectRequest>();
  GFile* file = g_file_new_for_path(ToUtf8(mountPoint).Text());
  g_file_find_enclosing_mount_async(file, G_PRIORITY_DEFAULT, nullptr, OnMountFound,
                                    new RequestHandle(request));
  g_object_unref(file);
  if (request->answered.Wait(patienceMs) != 0) {
    request->abandoned = true;
    return EjectResult::TimedOut;
  }
  if (request->ejected) return EjectResult::Ejected;
  error = request->error;
  return EjectResult::Failed;
}
