// The end of a process in which pieces of work may still be on their threads, reading from a medium
// that hangs, say. What the whole process shares must not be torn down under them. Called last of
// all by the entries of programs.
#pragma once

namespace neb {

// One that is on a thread of its own; each Job has one as long as it is at work.
class WorkOnThread {
  public:
    WorkOnThread();
    ~WorkOnThread();
    WorkOnThread(WorkOnThread&& Other) noexcept;
    WorkOnThread& operator=(WorkOnThread&&) = delete;

  private:
    bool mCounts = true;
};

// What is still to be done then, whether all work has ended or not; on the thread that ends. One
// for all.
void AtProcessEnd(void (*Do)());

// The exit code again, once all work has ended; where some does not within a moment, the process
// ends here and now with that code.
int EndProcess(int ExitCode);

}  // namespace neb
