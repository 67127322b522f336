// Event and Mutex on POSIX threads. All limits are absolute times of
// CLOCK_REALTIME, the clock of the plain condition and of the timed lock.
#include "foundation/sync.h"

#include <cerrno>
#include <ctime>

namespace {

timespec Deadline(uint32_t ms) {
  timespec time{};
  clock_gettime(CLOCK_REALTIME, &time);
  time.tv_sec += ms / 1000;
  time.tv_nsec += static_cast<long>(ms % 1000) * 1000000;
  if (time.tv_nsec >= 1000000000) {
    time.tv_sec++;
    time.tv_nsec -= 1000000000;
  }
  return time;
}

}  // namespace

Event::Event() {
  pthread_cond_init(&condition, nullptr);
  pthread_mutex_init(&mutex, nullptr);
}

Event::~Event() {
  pthread_cond_destroy(&condition);
  pthread_mutex_destroy(&mutex);
}

// A condition may wake for no reason, so the flag alone decides.
int Event::Wait(uint32_t ms) {
  const timespec deadline = ms == 0 || ms == kForever ? timespec{} : Deadline(ms);
  pthread_mutex_lock(&mutex);
  int error = 0;
  while (!signaled && error == 0) {
    if (ms == 0) {
      error = ETIMEDOUT;
    } else if (ms == kForever) {
      error = pthread_cond_wait(&condition, &mutex);
    } else {
      error = pthread_cond_timedwait(&condition, &mutex, &deadline);
    }
  }
  if (signaled) error = 0;
  pthread_mutex_unlock(&mutex);
  return error;
}

void Event::Set() {
  pthread_mutex_lock(&mutex);
  signaled = true;
  pthread_cond_signal(&condition);
  pthread_mutex_unlock(&mutex);
}

void Event::Reset() { signaled = false; }

Mutex::Mutex() {
  pthread_mutexattr_t attributes;
  pthread_mutexattr_init(&attributes);
  pthread_mutexattr_settype(&attributes, PTHREAD_MUTEX_RECURSIVE);
  pthread_mutex_init(&mutex, &attributes);
  pthread_mutexattr_destroy(&attributes);
}

Mutex::~Mutex() { pthread_mutex_destroy(&mutex); }

int Mutex::Lock(uint32_t ms) {
  int error = 0;
  if (ms == 0) {
    error = pthread_mutex_trylock(&mutex);
  } else if (ms == kForever) {
    error = pthread_mutex_lock(&mutex);
  } else {
    const timespec deadline = Deadline(ms);
    error = pthread_mutex_timedlock(&mutex, &deadline);
  }
  if (error) return error;
  count++;
  owner = pthread_self();
  return 0;
}

// The owner is forgotten before the lock goes, so that a thread that gave it
// back is never taken for the next owner.
void Mutex::Unlock() {
  if (!pthread_equal(owner, pthread_self()) || count <= 0) return;
  if (--count == 0) owner = pthread_t{};
  pthread_mutex_unlock(&mutex);
}
