// A file with one buffer for reading and writing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "foundation/file_time.h"
#include "foundation/strings.h"

enum OpenFlags : uint32_t {
  kOpenRead = 1,
  kOpenWrite = 2,  // truncates unless kOpenAppend
  kOpenCreate = 4,
  kOpenAppend = 8,
  kOpenKeepOnExec = 16,  // otherwise closed across exec
  kOpenText = 32,        // PutText writes "\r\n" for "\n"
  kOpenExecutable = 64,  // a new file gets mode 0775, otherwise 0664
  kOpenNoWait = 128,     // for nobody at a FIFO's other end, nor for a device's next bytes
};

// Every operation returns 0 or errno and keeps it in Error(). A read past the
// end gives -1. Descriptor 0 is never used; Descriptor() 0 means not open.
class StdFile {
 public:
  StdFile();
  ~StdFile();  // closes
  StdFile(const StdFile&) = delete;
  StdFile& operator=(const StdFile&) = delete;

  int Open(const Westring& path, uint32_t flags);
  int Open(const char* utf8Path, uint32_t flags);
  int Close();  // flushes
  bool IsOpen() const { return fd != 0; }

  // With read null, a short read returns -1 if nothing was read, else 0; with
  // read given it is told how many bytes came, and 0 of them return -1.
  int Read(void* target, size_t n, size_t* read = nullptr);
  int Write(const void* data, size_t n);
  int PutText(const char* text);
  int PutLine(const char* text);  // the text and one "\n", raw
  // At most size - 1 bytes up to "\n" or a zero byte, without the line end.
  // -1 at the end of the file, 0 for a line with anything in it.
  int ReadLine(char* target, int size);

  // Inside what the read buffer holds, only the position moves.
  int Seek(int64_t offset);
  int SeekRelative(int64_t offset);
  int Rewind();  // unless an error is pending, the next read goes to the file
  int64_t Tell() const;
  int64_t Size();  // without what the buffer still holds; -1 on failure
  int Truncate(int64_t length);
  int Flush();
  int Sync();  // flushes, then fsync

  int GetTime(FileTime& time);
  int GetTime(uint16_t& dosDate, uint16_t& dosTime);
  int SetTime(const FileTime& time);  // the access time stays
  int SetTime(uint16_t dosDate, uint16_t dosTime);

  int Error() const { return error; }
  int Descriptor() const { return fd; }
  const Westring& Name() const { return name; }

  static constexpr int kBufferSize = 4096;

 protected:
  int Fail(int code) { return error = code; }

 private:
  int OpenFile(const char* bytes, const Westring& path, uint32_t flags);
  int SwitchToReading();
  int SwitchToWriting();
  int MoveFile(int64_t offset);  // moves the system's position and empties the buffer
  int Fill();
  int FlushBuffer();
  int ReadBytes(char* target, size_t n, size_t& got);  // -1 if the file ends first
  int WriteBytes(const char* data, size_t n);

  int32_t fd = 0;
  int32_t error = 0;
  std::unique_ptr<char[]> buffer;
  int32_t bufferPosition = 0;
  int64_t bufferFill = 0;
  int32_t mode = 0;  // 0 reading, 1 writing
  int64_t filePosition = 0;
  Westring name;
  bool textMode = false;
};
