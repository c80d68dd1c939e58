/// Coin keeps its databases until the process ends; the leak check is for this project's memory.
extern "C" [[gnu::visibility("default")]] const char* __lsan_default_suppressions() {
  return "leak:libCoin\n";
}
