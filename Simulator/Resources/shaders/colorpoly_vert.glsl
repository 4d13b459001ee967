#ifdef GL_ES
precision highp float;
#endif

attribute vec3 a_position;
attribute vec4 color;
uniform mat4 u_mvp;
varying vec4 v_color;

void main()
{
    gl_Position = u_mvp * vec4(a_position, 1.0);
    v_color = color;
}
