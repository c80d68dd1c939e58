// An MFVec3f field of a list of vectors.

function vectors(list) {
  var field = new MFVec3f();
  field.length = list.length;
  for (var i = 0; i < list.length; ++i) field[i] = list[i];
  return field;
}
