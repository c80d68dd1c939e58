/* A host in plain C: loads the library at run time, knows its C header alone, and makes everything
 * by name. plain_c LIBRARY [OUT.wrl] */

#include <dlfcn.h>
#include <orvane/server/component.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static orvane_error error;

static void check(orvane_status status) {
  if (status == ORVANE_OK) return;
  fprintf(stderr, "0x%08X: %s\n", status, error.description);
  exit(1);
}

static orvane_value invoke(orvane_object* object, const char* member, int access,
                           const orvane_value* arguments, size_t count) {
  orvane_value result;
  int32_t id;
  check(object->calls->GetIdOfName(object, member, &id, &error));
  check(object->calls->Invoke(object, id, access, arguments, count, &result, &error));
  return result;
}

/* The object that a property holds or a method without arguments makes. */
static orvane_object* get(orvane_object* object, const char* member) {
  return invoke(object, member, ORVANE_GET, NULL, 0).as.object;
}

static void let_text(orvane_object* object, const char* property, const char* text) {
  const orvane_value value = {ORVANE_STRING, strlen(text), {.string = text}};
  invoke(object, property, ORVANE_LET, &value, 1);
}

static void release(orvane_object* object) { object->calls->Release(object); }

int main(int argc, char** argv) {
  void* library = dlopen(argc > 1 ? argv[1] : "liborvane.so.0", RTLD_NOW | RTLD_LOCAL);
  orvane_DllGetClassObject get_class;
  orvane_DllCanUnloadNow can_unload;
  orvane_class* class_object;
  orvane_object* control;
  if (library == NULL) {
    fprintf(stderr, "%s\n", dlerror());
    return 1;
  }
  *(void**)&get_class = dlsym(library, "DllGetClassObject");
  *(void**)&can_unload = dlsym(library, "DllCanUnloadNow");
  check(get_class(ORVANE_TEMPLATE_CTL, &class_object, &error));
  check(class_object->calls->CreateInstance(class_object, &control, &error));
  class_object->calls->Release(class_object);

  orvane_object* factory = get(control, "CreateFactory");
  orvane_object* chart = get(factory, "CreateColumnGraph");
  orvane_object* title = get(chart, "TitleProps");
  orvane_object* grid = get(chart, "GridProps");
  let_text(title, "Text", "From plain C");
  let_text(grid, "ZAxisCellCount", "1"); /* One series a Z cell. */

  const orvane_value first = {ORVANE_INT32, 0, {.int32 = 1}};
  orvane_object* series = invoke(chart, "GetSeries", ORVANE_CALL, &first, 1).as.object;
  orvane_object* heights = get(series, "Height");
  const double values[] = {1, 3, 2, 4};
  for (size_t i = 0; i < sizeof values / sizeof *values; ++i) {
    const orvane_value height = {ORVANE_DOUBLE, 0, {.number = values[i]}};
    invoke(heights, "Append", ORVANE_CALL, &height, 1);
  }

  const char* file = argc > 2 ? argv[2] : "plain_c.wrl";
  const orvane_value name = {ORVANE_STRING, strlen(file), {.string = file}};
  if (!invoke(chart, "ExportToFile", ORVANE_CALL, &name, 1).as.boolean) {
    fprintf(stderr, "cannot write %s\n", file);
    return 1;
  }
  orvane_OrvaneWriteProtos write_protos;
  *(void**)&write_protos = dlsym(library, "OrvaneWriteProtos");
  check(write_protos(argc > 3 ? argv[3] : ".", &error));
  printf("wrote %s\n", file);

  orvane_object* all[] = {heights, series, grid, title, chart, factory, control};
  for (size_t i = 0; i < sizeof all / sizeof *all; ++i) release(all[i]);
  if (can_unload() != ORVANE_OK) return 1;
  return dlclose(library);
}
